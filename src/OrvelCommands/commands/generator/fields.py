"""What each kind of field contributes to the generated code, as template text."""

from template_text import substitute

CPP_TYPES = {
    "int32": "int",
    "double": "double",
    "string": "std::string",
    "model_id": "std::string",
    "int32_list": "std::vector<int>",
    "double_list": "std::vector<double>",
}
VTM_TYPES = {
    "int32": "vtmInteger",
    "double": "vtmDouble",
    "string": "vtmString",
    "model_id": "vtmModelId",
    "enum": "vtmEnum",
    "int32_list": "vtmIntegerList",
    "double_list": "vtmDoubleList",
    "reference": "vtmReference",
}
DEFAULTS = {"int32": " = 0", "double": " = 0.0"}


class FieldKind:
    """One field of one command. Each template below gives lines of one place; an empty one gives none there."""

    ENUMERATION = ""
    ENUM_NAME = ""
    ENUM_NAME_BODY = ""
    ACCESSORS = ""
    BODIES = ""
    MEMBERS = ""
    LOAD = ""
    PRINT = ""
    CHECK = ""
    LINK = ""
    SCHEMA = ("  {${quoted_key}, $vtm_type, Presence::$step, ${quoted_target}, $id_type, $enumerator_set,\n"
              "   \"$doc\"},\n")

    HAS_ACCESSOR = """
  /// Whether $key is there.
  bool Has$key() const { return m_has_$key; }
"""
    HAS_MEMBER = "  bool m_has_$key = false;\n"
    NUM_ACCESSOR = """
  /// How many values $key has.
  std::uint64_t Num$key() const { return m_num_$key; }
"""
    NUM_MEMBER = "  std::uint64_t m_num_$key = 0;\n"

    def __init__(self, command, field):
        self.field = field
        companion = {"always": "", "optional": f"m_has_{field.key}", "repeated": f"m_num_{field.key}"}[field.presence]
        self.values = {
            "class_name": command.class_name,
            "source": command.source,
            "key": field.key,
            "doc": field.doc,
            "step": field.presence.capitalize(),
            "companion": f"{companion}, " if companion else "",
            "self_companion": f"self.{companion}, " if companion else "",
            "cpp_type": CPP_TYPES.get(field.type, f"Enum_{field.key}"),
            "vtm_type": VTM_TYPES[field.type],
            "default": DEFAULTS.get(field.type, ""),
            "target": field.target,
            "quoted_key": f'"{field.key}"',
            "quoted_target": f'"{field.target}"' if field.target else "{}",
            "id_type": f"KLV_IdType::{field.ids}" if field.ids else "std::nullopt",
            "enumerator_set": f"{command.source}::{field.enumerators.name}" if field.enumerators else "{}",
        }

    def render(self, piece):
        text = getattr(self, piece)
        if self.field.presence == "optional":
            text = {"ACCESSORS": text + self.HAS_ACCESSOR, "MEMBERS": self.HAS_MEMBER + text}.get(piece, text)
        if self.field.presence == "repeated":
            text = {"ACCESSORS": text + self.NUM_ACCESSOR, "MEMBERS": self.NUM_MEMBER + text}.get(piece, text)
        return substitute(f"{type(self).__name__}.{piece}", text, self.values)


class Value(FieldKind):
    """A number, a text, or a list that is one value."""

    ACCESSORS = """
  /// $doc
  const $cpp_type& Get$key() const { return m_$key; }
"""
    MEMBERS = "  $cpp_type m_$key$default;\n"
    LOAD = "  keys.$step(\"$key\", $vtm_type, ${companion}m_$key);\n"
    PRINT = "  text.$step(\"$key\", ${companion}m_$key);\n"


class ValueList(Value):
    """Any number of numbers or texts."""

    ACCESSORS = """
  /// $doc
  const std::vector<$cpp_type>& Get$key() const { return m_$key; }

  /// The value at a place counted from 1.
  /// \\warning There is no range test: \\p index must be in 1 to Num$key().
  const $cpp_type& Get$key(std::uint64_t index) const { return m_$key[index - 1]; }
"""
    MEMBERS = "  std::vector<$cpp_type> m_$key;\n"


class ModelId(Value):
    """The name of something in the model."""

    CHECK = "  ids.$step(\"$key\", ${companion}$id_type);\n"


class ModelIdList(ValueList):
    """Any number of names of things in the model."""

    CHECK = ModelId.CHECK


class Enumeration(Value):
    """One enumerator."""

    ENUMERATION = """  /// $doc
  enum Enum_$key : std::int32_t
  {
$enumerators
  };

"""
    ENUM_NAME = "  static std::string GetEnumName(Enum_$key value);\n"
    ENUM_NAME_BODY = """
std::string $class_name::GetEnumName(Enum_$key value)
{
  return std::string(schema::EnumeratorName(schema::data::$enumerator_set, value));
}
"""
    MEMBERS = "  Enum_$key m_$key = static_cast<Enum_$key>(0);\n"
    LOAD = "  keys.${step}Enum(\"$key\", ${companion}m_$key);\n"
    PRINT = "  text.$step(\"$key\", ${companion}GetEnumName(m_$key));\n"

    def __init__(self, command, field):
        super().__init__(command, field)
        rows = (f"    {field.key}{name} = {number}" for name, number in field.enumerators.enumerators)
        self.values["enumerators"] = ",\n".join(rows)


class EnumerationList(Enumeration):
    """Any number of enumerators."""

    ACCESSORS = ValueList.ACCESSORS
    MEMBERS = ValueList.MEMBERS
    PRINT = "  text.RepeatedEnum<Enum_$key>(\"$key\", m_num_$key, m_$key, &GetEnumName);\n"


class Reference(FieldKind):
    """Another command."""

    ACCESSORS = """
  /// $doc
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const $target& Get$key() const { return *m_$key; }
"""
    MEMBERS = "  const $target* m_$key = nullptr;\n"
    PRINT = Value.PRINT
    LINK = "  references.$step(\"$key\", &$aggregate::Get$target, ${self_companion}self.m_$key);\n"

    def render_link(self, aggregate):
        return substitute(f"{type(self).__name__}.LINK", self.LINK, {**self.values, "aggregate": aggregate})


class ReferenceList(Reference):
    """Any number of other commands."""

    ACCESSORS = """
  /// $doc Ownership: the parameter file's.
  const std::vector<const $target*>& Get$key() const { return m_$key; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value $key to retrieve from ..." with code "220653270608" for an
  /// \\p index outside 1 to Num$key().
  const $target& Get$key(std::uint64_t index) const;
"""
    BODIES = """
const $target& $class_name::Get$key(std::uint64_t index) const
{
  return ReferenceAt(m_$key, m_num_$key, index, "$key", s_type);
}
"""
    MEMBERS = "  std::vector<const $target*> m_$key;\n"


KINDS = {"model_id": (ModelId, ModelIdList), "enum": (Enumeration, EnumerationList),
         "reference": (Reference, ReferenceList)}


def make_field_kind(command, field):
    single, repeated = KINDS.get(field.type, (Value, ValueList))
    return (repeated if field.presence == "repeated" else single)(command, field)
