/// \file
/// What reaches the debug log while an object lives. One thread at a time.
#pragma once

#include "OrvelUtilities/KLV_LogMacros.h"

#include <vector>

class CapturedLog
{
public:
  CapturedLog()
  {
    KLV_LogMacros::SetSink([this](const KLV_LogRecord& record) { m_records.push_back(record); });
  }
  ~CapturedLog() { KLV_LogMacros::SetSink(nullptr); }
  CapturedLog(const CapturedLog&) = delete;
  CapturedLog& operator=(const CapturedLog&) = delete;

  const std::vector<KLV_LogRecord>& Records() const { return m_records; }

private:
  std::vector<KLV_LogRecord> m_records;
};

/// The one record that \p command writes with ToString().
template <class Command>
KLV_LogRecord LogRecordOf(const Command& command)
{
  const CapturedLog log;
  command.ToString();
  return log.Records().size() == 1 ? log.Records().front() : KLV_LogRecord{"not one record", 0, "", ""};
}
