#include "OrvelUtilities/KLV_ListFormatUtil.h"

#include "OrvelUtilities/OrvelStringUtil.h"

namespace
{

const std::string& ToText(const std::string& element)
{
  return element;
}

template <typename Number>
std::string ToText(Number element)
{
  return OrvelStringUtil::String(element);
}

template <typename Element>
std::string JoinElements(const std::vector<Element>& list, std::string_view separator)
{
  std::string line;
  for (std::size_t i = 0; i < list.size(); ++i)
  {
    if (i > 0)
    {
      line += separator;
    }
    line += ToText(list[i]);
  }
  return line;
}

}  // namespace

std::string KLV_ListFormatUtil::format_list_as_line(const std::vector<int>& list, std::string_view separator)
{
  return JoinElements(list, separator);
}

std::string KLV_ListFormatUtil::format_list_as_line(const std::vector<double>& list, std::string_view separator)
{
  return JoinElements(list, separator);
}

std::string KLV_ListFormatUtil::format_list_as_line(const std::vector<std::string>& list, std::string_view separator)
{
  return JoinElements(list, separator);
}
