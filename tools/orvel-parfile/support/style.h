/// \file
/// Colours of the output.
#pragma once

#include <string>

namespace CLI
{
class App;
}

/// What a piece of output is.
enum class Role
{
  Kind,
  Id,
  Key,
  Enumerator,
  Remark,  ///< What the tool adds to what stands in the file.
  Wrong,
  Added,
  Removed,
  Changed
};

/// \name What the option --color takes
/// @{
inline constexpr const char* kColorAlways = "always";
inline constexpr const char* kColorAuto = "auto";
inline constexpr const char* kColorNever = "never";
/// @}

/// Adds the option --color to a subcommand.
void AddColorOption(CLI::App& subcommand, std::string& choice);

/// Colours pieces of standard output, or leaves them as they are.
class Style
{
public:
  /// \param choice one of the above; with kColorAuto there are colours on a terminal that knows them, unless the
  /// environment has NO_COLOR
  explicit Style(const std::string& choice);

  std::string operator()(Role role, const std::string& text) const;

private:
  bool m_has_colors;
};
