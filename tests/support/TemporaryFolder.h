/// \file
/// An empty working directory for a test. It changes the working directory of the process: one at a time.
#pragma once

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

/// Makes a folder of its own below the system's temporary folder and works in it. The end of the object goes back and
/// removes the folder with all that lies in it.
class TemporaryFolder
{
public:
  TemporaryFolder() : m_before(std::filesystem::current_path()), m_path(Make())
  {
    std::filesystem::current_path(m_path);
  }
  ~TemporaryFolder()
  {
    std::error_code ignored;
    std::filesystem::current_path(m_before, ignored);
    std::filesystem::remove_all(m_path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return m_path; }

private:
  static std::filesystem::path Make()
  {
    std::string pattern = (std::filesystem::temp_directory_path() / "orvel_test_XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
    {
      throw std::filesystem::filesystem_error("mkdtemp", pattern, std::error_code(errno, std::generic_category()));
    }
    return pattern;
  }

  std::filesystem::path m_before;
  std::filesystem::path m_path;
};
