#include "picture.h"

#include "replacement_file.h"
#include "support/exit_code.h"
#include "support/progress.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

extern char** environ;  // NOLINT(readability-redundant-declaration): not every system's headers have it

namespace fs = std::filesystem;

namespace
{

constexpr const char* kTextEnding = ".dot";
constexpr std::array<const char*, 4> kEndings = {kTextEnding, ".svg", ".png", ".pdf"};
constexpr int kWaitMilliseconds = 20;

struct CloseFile
{
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void CannotWrite(const fs::path& place)
{
  throw UnusableInput(place.string() + " cannot be written: " + std::strerror(errno));
}

// A file without a name that holds a text, to be read from its begin.
File TemporaryFile(const std::string& text)
{
  File file(std::tmpfile());
  if (!file || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() || std::fflush(file.get()) != 0)
  {
    CannotWrite("a temporary file");
  }
  std::rewind(file.get());
  return file;
}

std::string FirstLineOf(std::FILE* file)
{
  std::array<char, 512> line{};
  std::rewind(file);
  std::string text = std::fgets(line.data(), line.size(), file) != nullptr ? line.data() : "";
  text.erase(std::find(text.begin(), text.end(), '\n'), text.end());
  return text;
}

class SpawnActions
{
public:
  SpawnActions() { posix_spawn_file_actions_init(&m_actions); }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;
  ~SpawnActions() { posix_spawn_file_actions_destroy(&m_actions); }

  void Redirect(int descriptor, int source) { posix_spawn_file_actions_adddup2(&m_actions, source, descriptor); }
  const posix_spawn_file_actions_t* Get() const { return &m_actions; }

private:
  posix_spawn_file_actions_t m_actions{};
};

pid_t StartDot(const std::string& format, std::FILE* input, std::FILE* output, std::FILE* messages)
{
  SpawnActions actions;
  actions.Redirect(STDIN_FILENO, fileno(input));
  actions.Redirect(STDOUT_FILENO, fileno(output));
  actions.Redirect(STDERR_FILENO, fileno(messages));
  std::string program = "dot";
  std::string option = "-T" + format;
  const std::array<char*, 3> arguments = {program.data(), option.data(), nullptr};
  pid_t process = 0;
  ::signal(SIGCHLD, SIG_DFL);  // a parent may have it ignored, and then nobody could wait for the program
  const int error = posix_spawnp(&process, "dot", actions.Get(), nullptr, arguments.data(), environ);
  if (error == ENOENT)
  {
    throw UnusableInput("the program dot, which draws the picture, is not installed; install Graphviz (apt-get install "
                        "graphviz), or name a file that ends with .dot, which needs no dot");
  }
  if (error != 0)
  {
    throw UnusableInput(std::string("the program dot cannot be started: ") + std::strerror(error));
  }
  return process;
}

bool EndsWell(pid_t process)
{
  Progress progress("drawing", 0);
  int status = 0;
  pid_t ended = 0;
  while ((ended = waitpid(process, &status, WNOHANG)) == 0)
  {
    poll(nullptr, 0, kWaitMilliseconds);
    progress.Step();
  }
  return ended == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void Draw(const std::string& text, const std::string& format, std::FILE* output)
{
  const File input = TemporaryFile(text);
  const File messages = TemporaryFile({});
  if (!EndsWell(StartDot(format, input.get(), output, messages.get())))
  {
    throw UnusableInput("the program dot cannot draw the picture: " + FirstLineOf(messages.get()));
  }
}

}  // namespace

void RequirePictureEnding(const fs::path& place)
{
  if (std::find(kEndings.begin(), kEndings.end(), place.extension()) == kEndings.end())
  {
    throw UnusableInput(place.string() + ": a picture is a file that ends with .svg, .png, .pdf, or .dot for its text");
  }
}

void WritePicture(const std::string& text, const fs::path& place)
{
  RequirePictureEnding(place);
  const ReplacementFile replacement(fs::absolute(place));
  const fs::path scratch = replacement.Path();
  File file(std::fopen(scratch.c_str(), "wbe"));
  if (!file)
  {
    CannotWrite(place);
  }
  if (place.extension() == kTextEnding)
  {
    std::fwrite(text.data(), 1, text.size(), file.get());
  }
  else
  {
    Draw(text, place.extension().string().substr(1), file.get());
  }
  const bool is_written = std::ferror(file.get()) == 0;
  if (std::fclose(file.release()) != 0 || !is_written)
  {
    CannotWrite(place);
  }
  replacement.PutInPlace();
}
