"""Puts the generated files together from the tables and the templates."""

from fields import make_field_kind
from template_text import fill, substitute

COMMAND_LINE = "./run generate"
GENERATOR = "src/OrvelCommands/commands/generator"
GENERATED = "commands/LocalGenerated"
BANNER = ("/// Generated from $tables\n"
          "/// by $generator. Do not edit: change the table and run `$command_line`.")


def table_names(tables):
    return " and ".join(f"{table.name}.toml" for table in tables)


def banner(*tables):
    return substitute("BANNER", BANNER,
                      {"tables": table_names(tables), "generator": GENERATOR, "command_line": COMMAND_LINE})


class CommandText:
    """The pieces of one command class."""

    def __init__(self, table, command):
        self.table = table
        self.command = command
        self.kinds = [make_field_kind(command, field) for field in command.fields]

    def pieces(self, piece):
        return "".join(kind.render(piece) for kind in self.kinds)

    def forward_declarations(self):
        targets = {field.target for field in self.command.fields if field.target} - {self.command.class_name}
        return "".join(f"class {target};\n" for target in sorted(targets))

    def header(self):
        return fill(
            "command.h.tmpl", banner=banner(self.table), class_name=self.command.class_name,
            text_name=self.command.text_name, doc=self.command.doc,
            forward_declarations=self.forward_declarations(), enumerations=self.pieces("ENUMERATION"),
            enum_names=self.enum_names(), accessors=self.pieces("ACCESSORS"), members=self.pieces("MEMBERS"))

    def enum_names(self):
        names = self.pieces("ENUM_NAME")
        return fill("enum_names.h.tmpl", names=names) if names else ""

    def body(self):
        class_name = self.command.class_name
        return fill(
            "command.cpp.tmpl", class_name=class_name, load=self.step("load", self.pieces("LOAD")),
            print_steps=self.pieces("PRINT"), log_line=self.command.log_line,
            check=self.step("check", self.pieces("CHECK")), enum_names=self.pieces("ENUM_NAME_BODY"),
            bodies=self.pieces("BODIES"))

    def step(self, name, lines):
        template = f"{name}.cpp.tmpl" if lines else f"{name}_nothing.cpp.tmpl"
        return fill(template, class_name=self.command.class_name, **({"steps": lines} if lines else {}))

    def schema_fields(self):
        return fill("schema_fields.h.tmpl", class_name=self.command.class_name, rows=self.pieces("SCHEMA"))

    def links(self, aggregate):
        return "".join(kind.render_link(aggregate) for kind in self.kinds if kind.field.target)


class AggregateText:
    """The pieces of one aggregate over the commands of its tables."""

    def __init__(self, aggregate, tables, commands):
        self.aggregate = aggregate
        self.tables = tables
        self.commands = commands
        self.linked = [text for text in commands if text.links(aggregate.class_name)]

    def each(self, template):
        """One copy of a template for each command: `<template>_one` or `<template>_any`, by its count."""
        return "".join(
            fill(f"{template}_{text.command.count}.tmpl", aggregate=self.aggregate.class_name,
                 class_name=text.command.class_name, doc=text.command.doc) for text in self.commands)

    def every(self, template, commands):
        return "".join(
            fill(template, aggregate=self.aggregate.class_name, class_name=text.command.class_name,
                 steps=text.links(self.aggregate.class_name)) for text in commands)

    def header(self):
        includes = "".join(f'#include "OrvelCommands/commands/{table.name}.h"\n' for table in self.tables)
        has_one = any(text.command.count == "one" for text in self.commands)
        return fill("aggregate.h.tmpl", banner=banner(*self.tables), aggregate=self.aggregate.class_name,
                    doc=self.aggregate.doc, includes=includes, getters=self.each("aggregate_getters.h"),
                    getters_of_one=fill("aggregate_one.h.tmpl") if has_one else "",
                    then_links=", then links them by their references" if self.linked else "",
                    load_throws=fill("aggregate_load_throws.h.tmpl") if self.linked else "",
                    members=self.each("aggregate_members.h"))

    def source(self):
        moves = ",\n".join(f"    m_{text.command.class_name}(std::move(other.m_{text.command.class_name}))"
                           for text in self.commands)
        return fill("aggregate.cpp.tmpl", banner=banner(*self.tables), aggregate=self.aggregate.class_name,
                    moves=moves, loads=self.each("aggregate_load.cpp"), links=self.link_pass(),
                    link_include='#include "OrvelCommands/parfile/ResolveReferences.h"\n' if self.linked else "",
                    checks=self.every("aggregate_check.cpp.tmpl", self.commands),
                    deletions=self.every("aggregate_delete.cpp.tmpl", self.commands),
                    getters=self.each("aggregate_getters.cpp"))

    def link_pass(self):
        if not self.linked:
            return ""
        return fill("aggregate_links.cpp.tmpl", links=self.every("aggregate_link.cpp.tmpl", self.linked))


def make_outputs(tables):
    """All generated files: path below src/OrvelCommands to text, in a stable order."""
    texts = _command_texts(tables)
    outputs = {}
    for table in tables:
        commands = texts[table.name]
        for text in commands:
            outputs[f"{GENERATED}/{text.command.class_name}.h"] = text.header()
        outputs[f"{GENERATED}/{table.name}.cpp"] = fill(
            "commands.cpp.tmpl", banner=banner(table), table=table.name,
            log_source=table.log_source.replace("\\", "\\\\"), bodies="".join(text.body() for text in commands))
        outputs[f"commands/{table.name}.h"] = fill(
            "umbrella.h.tmpl", banner=banner(table), table=table.name,
            includes="".join(f'#include "OrvelCommands/{GENERATED}/{text.command.class_name}.h"\n'
                             for text in commands))
    outputs[f"{GENERATED}/command_schema_data.h"] = _schema_data(tables, texts)
    aggregates = make_aggregates(tables, texts)
    for aggregate in aggregates:
        outputs[f"parfile/{aggregate.aggregate.class_name}.h"] = aggregate.header()
        outputs[f"parfile/{aggregate.aggregate.class_name}.cpp"] = aggregate.source()
    linking = [aggregate for aggregate in aggregates if aggregate.linked]
    for name, template in (("ResolveReferences.h", "link_declaration.h.tmpl"),
                           ("ResolveReferences.cpp", "link_definition.cpp.tmpl")):
        outputs[f"parfile/{name}"] = fill(
            f"{name}.tmpl", banner=banner(*tables), includes=_aggregate_includes(linking),
            functions="".join(aggregate.every(template, aggregate.linked) for aggregate in linking))
    outputs["parfile/for_each_command.h"] = fill(
        "for_each_command.h.tmpl", banner=banner(*tables), includes=_aggregate_includes(aggregates),
        functions="".join(fill("for_each_aggregate.h.tmpl", aggregate=a.aggregate.class_name,
                               calls=a.each("for_each_kind.h")) for a in aggregates))
    return outputs


def _command_texts(tables):
    return {table.name: [CommandText(table, command) for command in table.commands] for table in tables}


def make_aggregates(tables, texts=None):
    """The pieces of all aggregates."""
    texts = texts or _command_texts(tables)
    return [_aggregate(table, tables, texts) for table in tables]


def _aggregate(table, tables, texts):
    parts = [table] + [other for name in table.aggregate.also for other in tables if other.name == name]
    return AggregateText(table.aggregate, parts, [text for part in parts for text in texts[part.name]])


def _aggregate_includes(aggregates):
    return "".join(f'#include "OrvelCommands/parfile/{a.aggregate.class_name}.h"\n' for a in aggregates)


def _schema_data(tables, texts):
    def enumerator_set(one):
        rows = ",\n".join(f'  {{"{name}", {number}}}' for name, number in one.enumerators)
        return fill("schema_enumerators.h.tmpl", name=one.name, rows=rows)

    sets = "".join(fill("schema_source.h.tmpl", table=table.name,
                        sets="".join(enumerator_set(one) for one in table.enumerator_sets)) for table in tables)
    commands = [text for table in tables for text in texts[table.name]]
    rows = "".join(
        fill("schema_command.h.tmpl", class_name=text.command.class_name, text_name=text.command.text_name,
             count=text.command.count.capitalize(), doc=text.command.doc) for text in commands)
    return fill("command_schema_data.h.tmpl", banner=banner(*tables), sets=sets,
                fields="".join(text.schema_fields() for text in commands), commands=rows)
