/// \file
/// The failure that ends an operation. A failure object is used by one thread at a time.
#pragma once

#include "OrvelCommands/foundation/KLV_Exception.h"

/// What every operation of the library throws. It can be caught as itself, as KLV_Exception and as std::exception.
class ORVELCOMMANDS_EXPORT KLV_Failure : public KLV_Exception
{
public:
  using KLV_Exception::KLV_Exception;

  /// Ownership: shares the cause, see the warning of KLV_Exception.
  KLV_Failure(const KLV_Failure& other);

  ~KLV_Failure() override;

  /// A new failure with the same code, message and prefix, a clone of the cause and a call stack of its own.
  KLV_Failure* Clone() const override;

  /// "KLV_Failure"
  std::string GetTypeName() const override;

  /// -1 with a code, -14 without.
  std::int32_t GetStatus() const override;
};
