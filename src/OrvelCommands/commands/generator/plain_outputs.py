"""Puts the generated file of the benchmarks together: the commands as plain structs."""

from fields import CPP_TYPES, DEFAULTS
from outputs import banner
from template_text import fill, substitute

PLAIN_COMMANDS = "peers/LocalGenerated/plain_commands.h"

PLAIN_TYPES = {**CPP_TYPES, "enum": "int", "reference": "Link<$target>"}
PLAIN_DEFAULTS = {**DEFAULTS, "enum": DEFAULTS["int32"]}
PRESENCE_TYPES = {"always": "$one", "optional": "std::optional<$one>", "repeated": "std::vector<$one>"}

KEY_MEMBER = "  $type $member$default;\n"
KEY_VISIT = "    keys.$step(\"$key\", $member);\n"
KIND_MEMBER = "  std::vector<$struct> $member;\n"
KIND_ACTION = "    action(\"$class_name\", $member);\n"

# Names that a member cannot have: the words of C++, and what the templates name beside the members.
TAKEN = frozenset("""
    alignas alignof and and_eq asm auto bitand bitor bool break case catch char char16_t char32_t class compl const
    const_cast constexpr continue decltype default delete do double dynamic_cast else enum explicit export extern false
    float for friend goto if inline int long mutable namespace new noexcept not not_eq nullptr operator or or_eq private
    protected public register reinterpret_cast return short signed sizeof static static_assert static_cast struct switch
    template this thread_local throw true try typedef typeid typename union unsigned using virtual void volatile wchar_t
    while xor xor_eq
    action id keys std
""".split())
OTHER_WORDS = {"operator": "operators", "xor": "exclusive_or"}
TAKEN_STRUCTS = ("Job", "Link", "OneOfEachKind")


def _member(name):
    """The name of a key or class as that of a member: ITER_MAX_ is iter_max."""
    word = name.lower().removesuffix("_")
    return OTHER_WORDS.get(word, f"{word}_" if word in TAKEN else word)


def _struct(class_name):
    """The name of a class as that of a struct: OPT_PARAM_ is OptParam."""
    word = "".join(part.capitalize() for part in class_name.split("_"))
    return f"{word}_" if word in TAKEN_STRUCTS else word


def _type(field):
    one = substitute("PLAIN_TYPES", PLAIN_TYPES[field.type], {"target": _struct(field.target)})
    return substitute("PRESENCE_TYPES", PRESENCE_TYPES[field.presence], {"one": one})


def _key_member(field):
    default = PLAIN_DEFAULTS.get(field.type, "") if field.presence == "always" else ""
    return substitute("KEY_MEMBER", KEY_MEMBER,
                      {"type": _type(field), "member": _member(field.key), "default": default})


def _key_visit(field):
    return substitute("KEY_VISIT", KEY_VISIT,
                      {"step": field.presence.capitalize(), "key": field.key, "member": _member(field.key)})


def _command(command):
    return fill("plain_command.h.tmpl", struct=_struct(command.class_name),
                members="".join(map(_key_member, command.fields)), visits="".join(map(_key_visit, command.fields)))


def _each_kind(name, text, commands):
    return "".join(substitute(name, text, {"class_name": command.class_name, "struct": _struct(command.class_name),
                                           "member": _member(command.class_name)}) for command in commands)


def make_plain_outputs(tables):
    """The generated file of the benchmarks: path below benchmarks to text."""
    commands = [command for table in tables for command in table.commands]
    structs = [_struct(command.class_name) for command in commands]
    return {PLAIN_COMMANDS: fill(
        "plain_commands.h.tmpl", banner=banner(*tables),
        declarations="".join(f"struct {struct};\n" for struct in structs),
        structs="".join(map(_command, commands)),
        members=_each_kind("KIND_MEMBER", KIND_MEMBER, commands),
        actions=_each_kind("KIND_ACTION", KIND_ACTION, commands),
        one_of_each=",\n".join(f"  OfKind<{struct}>" for struct in structs))}
