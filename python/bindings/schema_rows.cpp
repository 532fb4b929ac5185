#include "schema_rows.h"

#include "model_ids.h"

#include "OrvelCommands/commands/command_schema.h"

namespace py = pybind11;

namespace orvel::python
{
namespace
{

py::str ToStr(std::string_view text)
{
  return py::str(text.data(), text.size());
}

const char* NameOf(schema::Presence presence)
{
  switch (presence)
  {
    case schema::Presence::Always: return "always";
    case schema::Presence::Optional: return "optional";
    default: return "repeated";
  }
}

template <class Row, class Convert>
py::tuple ToTuple(schema::Rows<Row> rows, Convert convert)
{
  py::tuple result(rows.size());
  for (std::size_t position = 0; position < rows.size(); ++position)
  {
    result[position] = convert(rows[position]);
  }
  return result;
}

py::object EnumeratorRow(const schema::Enumerator& enumerator)
{
  return py::make_tuple(ToStr(enumerator.name), enumerator.value);
}

py::object FieldRow(const schema::Field& field)
{
  const py::object target = field.target.empty() ? py::object(py::none()) : ToStr(field.target);
  return py::make_tuple(ToStr(field.key), static_cast<int>(field.type), NameOf(field.presence), target,
                        IdListName(field.id_type), ToTuple(field.enumerators, EnumeratorRow),
                        ToStr(field.documentation));
}

py::object CommandRow(const schema::Command& command)
{
  return py::make_tuple(ToStr(command.kind), ToStr(command.text_name),
                        command.count == schema::Count::One ? "one" : "any", ToTuple(command.fields, FieldRow),
                        ToStr(command.documentation));
}

}  // namespace

void BindSchemaRows(py::module_& module)
{
  module.attr("schema_rows") = ToTuple(schema::Commands(), CommandRow);
}

}  // namespace orvel::python
