/// \file
/// Texts on their way between the library and Python.
#pragma once

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

namespace orvel::python
{

/// A file holds bytes and nothing says that they are UTF-8: those that are not survive as lone surrogates.
inline pybind11::str ToPythonText(std::string_view text)
{
  PyObject* result = PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape");
  if (result == nullptr)
  {
    throw pybind11::error_already_set();
  }
  return pybind11::reinterpret_steal<pybind11::str>(result);
}

/// A text of Python with the type that the functions of this module take, so that what ToPythonText() gave finds its
/// way back. A NUL is refused: the library would end the text there.
struct Text
{
  std::string value;
};

}  // namespace orvel::python

namespace pybind11::detail
{

template <>
struct type_caster<orvel::python::Text>
{
  PYBIND11_TYPE_CASTER(orvel::python::Text, const_name("str"));

  bool load(handle source, bool)
  {
    if (!PyUnicode_Check(source.ptr()))
    {
      return false;
    }
    const auto bytes = reinterpret_steal<object>(PyUnicode_AsEncodedString(source.ptr(), "utf-8", "surrogateescape"));
    if (!bytes)
    {
      throw error_already_set();
    }
    value.value = std::string(reinterpret_borrow<pybind11::bytes>(bytes));
    if (value.value.find('\0') != std::string::npos)
    {
      throw value_error("a text of a parameter file cannot hold a NUL");
    }
    return true;
  }
};

}  // namespace pybind11::detail
