/// \file
/// The kinds of command that a parameter file can hold.
/// Thread safety: plain numbers.
#pragma once

#include <cstdint>

/// Scope of the command kinds.
struct OrvelCmdDefs
{
  /// The kind of a parsed command, named as in the text of a parameter file. The numbers are fixed.
  enum Cmd : std::int32_t
  {
    MODEL_INPUT = 0,
    GROUP_DEF = 1,
    DV = 2,
    DRESP = 3,
    OPERATOR = 4,
    OBJ_FUNC = 5,
    CONSTRAINT = 6,
    DV_CONSTRAINT = 7,
    MESH_SMOOTH = 8,
    OPTIMIZE = 9,
    OPT_PARAM = 10,
    STOP = 11,
    OUTPUT = 12,
    SMOOTH = 13,
    OPTIONS = 14,
    DV_UPDATE_PARAM = 15,
    SCALING_CURVE = 16,
    FILTER = 17,
    CONTOURPLOT = 18,
    REPORT = 19,
    CMD_PLACEHOLDER = 20,
    CMD_NONE = 21  ///< No kind at all; also the number of kinds.
  };
};
