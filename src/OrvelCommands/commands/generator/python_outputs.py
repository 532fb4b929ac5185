"""Puts the generated files of the Python module together: its bindings and its type stubs."""

from outputs import COMMAND_LINE, GENERATOR, banner, make_aggregates, table_names
from template_text import fill, substitute

BINDINGS = "bindings/LocalGenerated"
STUBS = "orvelcommands"

PYTHON_TYPES = {
    "int32": "int",
    "double": "float",
    "string": "str",
    "model_id": "str",
    "enum": "Enum_$key",
    "int32_list": "tuple[int, ...]",
    "double_list": "tuple[float, ...]",
    "reference": "_commands.$target",
}
PRESENCE_TYPES = {"always": "$one", "optional": "$one | None", "repeated": "tuple[$one, ...]"}

KEY = "    .$step(\"$key\", $accessors)\n"
ACCESSORS = {"optional": "&$class_name::Has$key, &$class_name::Get$key"}
ACCESSOR = "&$class_name::Get$key"
STUB_KEY = """    @property
    def $key(self) -> $type:
        \"""$doc\"""
"""
STUB_ENUMERATION = """    class Enum_$key(IntEnum):
        \"""$doc\"""

$enumerators
"""


def _binding_key(command, field):
    accessors = substitute("ACCESSORS", ACCESSORS.get(field.presence, ACCESSOR),
                           {"class_name": command.class_name, "key": field.key})
    return substitute("KEY", KEY, {"step": field.presence.capitalize(), "key": field.key, "accessors": accessors})


def _stub_key(field):
    one = substitute("PYTHON_TYPES", PYTHON_TYPES[field.type], {"key": field.key, "target": field.target})
    all_values = substitute("PRESENCE_TYPES", PRESENCE_TYPES[field.presence], {"one": one})
    return substitute("STUB_KEY", STUB_KEY, {"key": field.key, "doc": field.doc, "type": all_values})


def _stub_enumeration(field):
    rows = "".join(f"        {name} = {number}\n" for name, number in field.enumerators.enumerators)
    return substitute("STUB_ENUMERATION", STUB_ENUMERATION, {"key": field.key, "doc": field.doc, "enumerators": rows})


def _command_binding(command):
    keys = "".join(_binding_key(command, field) for field in command.fields)
    return fill("python_command.cpp.tmpl", class_name=command.class_name, keys=keys.removesuffix("\n"))


def _command_stub(command):
    return fill("python_command.pyi.tmpl", class_name=command.class_name, doc=command.doc,
                enumerations="".join(_stub_enumeration(field) for field in command.fields if field.enumerators),
                keys="".join(_stub_key(field) for field in command.fields).removesuffix("\n"))


def _each_kind(template, aggregate):
    return aggregate.each(template).removesuffix("\n")


def _job_binding(aggregate):
    return fill("python_job.cpp.tmpl", aggregate=aggregate.aggregate.class_name, doc=aggregate.aggregate.doc,
                kinds=_each_kind("python_kind.cpp", aggregate))


def _job_stub(aggregate):
    return fill("python_job.pyi.tmpl", aggregate=aggregate.aggregate.class_name, doc=aggregate.aggregate.doc,
                kinds=_each_kind("python_kind.pyi", aggregate))


def make_python_outputs(tables):
    """All generated files of the Python module: path below python to text, in a stable order."""
    aggregates = make_aggregates(tables)
    commands = [command for table in tables for command in table.commands]
    origin = {"tables": table_names(tables), "generator": GENERATOR, "command_line": COMMAND_LINE}
    outputs = {}
    for table in tables:
        bindings = "\n".join(_command_binding(command) for command in table.commands)
        outputs[f"{BINDINGS}/{table.name}.cpp"] = fill("python_commands.cpp.tmpl", banner=banner(table),
                                                       table=table.name, bindings=bindings)
    outputs[f"{BINDINGS}/command_bindings.h"] = fill(
        "python_bindings.h.tmpl", banner=banner(*tables),
        declarations="".join(f"void Bind_{table.name}(pybind11::module_& module);\n" for table in tables),
        calls="".join(f"  Bind_{table.name}(module);\n" for table in tables))
    outputs[f"{BINDINGS}/jobs.cpp"] = fill("python_jobs.cpp.tmpl", banner=banner(*tables),
                                           bindings="\n".join(_job_binding(aggregate) for aggregate in aggregates))
    outputs[f"{STUBS}/commands.pyi"] = fill("python_commands.pyi.tmpl", **origin,
                                            classes="".join(_command_stub(command) for command in commands))
    outputs[f"{STUBS}/parfile.pyi"] = fill("python_parfile.pyi.tmpl", **origin,
                                           classes="".join(_job_stub(aggregate) for aggregate in aggregates))
    return outputs
