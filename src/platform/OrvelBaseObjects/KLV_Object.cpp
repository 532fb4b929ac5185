#include "OrvelBaseObjects/KLV_Object.h"

KLV_Object::~KLV_Object() = default;
