#include "OrvelCmdEngine/OrvelCmdItemError.h"

OrvelCmdItemError::~OrvelCmdItemError() = default;
