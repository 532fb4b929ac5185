#include "OrvelUtilities/KLV_LogMacros.h"

#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include <spdlog/logger.h>
#include <spdlog/sinks/stdout_sinks.h>

namespace
{

// The logger stays out of spdlog's registry, where its name and level could meet those of the application.
class DefaultSink
{
public:
  DefaultSink() : m_logger("orvel", std::make_shared<spdlog::sinks::stderr_sink_st>())
  {
    m_logger.set_level(spdlog::level::debug);
    m_logger.set_pattern("[%Y-%m-%d %H:%M:%S.%e] [%l] %v");
  }

  void Write(const KLV_LogRecord& record)
  {
    std::string_view text = record.text;
    if (!text.empty() && text.back() == '\n')
    {
      text.remove_suffix(1);
    }
    m_logger.debug("{}:{}: {}{}", record.source, record.line, record.prefix, text);
  }

private:
  spdlog::logger m_logger;
};

struct LogState
{
  std::mutex mutex;
  KLV_LogMacros::Sink sink;  // null: the default one
  DefaultSink default_sink;
};

// Never destroyed, so that destructors of static objects can still log.
LogState& GetLogState()
{
  static LogState& state = *new LogState;
  return state;
}

}  // namespace

void KLV_LogMacros::debug(std::string_view source, int line, std::string_view prefix, std::string_view text)
{
  const KLV_LogRecord record{std::string(source), line, std::string(prefix), std::string(text)};
  LogState& state = GetLogState();
  const std::lock_guard<std::mutex> lock(state.mutex);
  if (state.sink)
  {
    state.sink(record);
  }
  else
  {
    state.default_sink.Write(record);
  }
}

void KLV_LogMacros::SetSink(Sink sink)
{
  LogState& state = GetLogState();
  const std::lock_guard<std::mutex> lock(state.mutex);
  // The former sink ends with the argument, after the lock: its destructor may log.
  std::swap(state.sink, sink);
}
