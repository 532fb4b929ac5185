/// \file
/// The root class of the job's objects.
/// Thread safety: the class holds no data; a derived class says what holds for it.
#pragma once

#include "OrvelBaseObjects/orvelbaseobjects_export.h"

/// What an object of any of the job's modules can be held and deleted as.
class ORVELBASEOBJECTS_EXPORT KLV_Object
{
public:
  KLV_Object() = default;

  /// There is nothing to copy.
  KLV_Object(const KLV_Object&) = default;

  /// There is nothing to take over.
  KLV_Object& operator=(const KLV_Object&) = default;

  virtual ~KLV_Object();
};
