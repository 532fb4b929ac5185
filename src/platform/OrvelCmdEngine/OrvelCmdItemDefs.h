/// \file
/// The kinds of item that a command can hold, and the enumerators that items can have.
/// Thread safety: plain numbers; every operation may be called from several threads at once.
#pragma once

#include <cstdint>
#include <string>

#include "OrvelCmdEngine/orvelcmdengine_export.h"

/// Scope of the item kinds and of the enumerators.
struct OrvelCmdItemDefs
{
  /// The kind of an item, named as in the text of a parameter file. The numbers are fixed.
  enum CmdItem : std::int32_t
  {
    ID_NAME = 0,
    TYPE = 1,
    FILE = 2,
    ADD_FILE = 3,
    GROUP = 4,
    ELEMENT_GROUP = 5,
    NODE_GROUP = 6,
    FACE_GROUP = 7,
    DRESP = 8,
    TARGET = 9,
    VALUE = 10,
    MIN = 11,
    MAX = 12,
    LIST_BEGIN = 13,
    DV = 14,
    OBJ_FUNC = 15,
    CONSTRAINT = 16,
    DV_CONSTRAINT = 17,
    STRATEGY = 18,
    STOP = 19,
    MESH_SMOOTH = 20,
    ITER_MAX = 21,
    OPT_PARAM = 22,
    DV_UPDATE_PARAM = 23,
    REFERENCE = 24,
    COEFFICIENT = 25,
    SOLVER_RUN_MODE = 26,
    SENS_CALC_MODE = 27,
    UPDATE_TYPE = 28,
    UPDATE_ID = 29,
    FORMAT = 30,
    DESCRIPTION = 31,
    DIRECTION = 32,
    LOADCASE = 33,
    MAGNITUDE = 34,
    LOWER = 35,
    UPPER = 36,
    CS = 37,
    PLACEHOLDER = 38,
    ITEM_NONE = 39  ///< No item at all; also the number of item kinds.
  };

  /// The value of an item that chooses among named things.
  ///
  /// Every 32-bit number is a value: most enumerators belong to the one command that reads them and are
  /// converted from its number; only those that tell apart the groups of `GROUP_DEF` have names here.
  enum EnumValue : std::int32_t
  {
    GROUP_TYPE_ELEMENT = 0,       ///< `TYPE`: a group of elements.
    GROUP_TYPE_NODE = 2,          ///< `TYPE`: a group of nodes.
    GROUP_FORMAT_INTERSECT = 73,  ///< `FORMAT`: what all listed groups share.
    GROUP_FORMAT_MERGE = 77,      ///< `FORMAT`: all listed groups together.
    GROUP_FORMAT_SUBTRACT = 83,   ///< `FORMAT`: the listed groups taken off.
    GROUP_FORMAT_XOR = 88         ///< `FORMAT`: what is in one of the listed groups and not in the others.
  };

  /// Returns: the kind's name as a parameter file writes it, "ID_NAME" and the like; "CmdItem 39" and the
  /// like for a number that is no kind.
  ORVELCMDENGINE_EXPORT static std::string GetItemName(CmdItem item);
};
