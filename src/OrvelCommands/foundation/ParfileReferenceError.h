/// \file
/// A reference that leads nowhere, for other modules of the job. An object is used by one thread at a time.
#pragma once

#include "OrvelCommands/orvelcommands_export.h"

#include <string>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

/// The two ends of a broken reference. The library neither makes nor throws one; modules that check references of
/// their own share this record.
class ORVELCOMMANDS_EXPORT ParfileReferenceError
{
public:
  /// \p source and \p target are free texts that name the two commands.
  ParfileReferenceError(std::string source, std::string target);

  /// Copies both texts.
  ParfileReferenceError(const ParfileReferenceError& other);

  /// Takes both texts of the other one.
  ParfileReferenceError& operator=(const ParfileReferenceError& other);

  virtual ~ParfileReferenceError();

  /// Source, " -> ", target.
  std::string GetDescription() const;

private:
  std::string m_source;
  std::string m_target;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
