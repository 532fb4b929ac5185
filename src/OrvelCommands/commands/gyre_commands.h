/// \file
/// All command classes of gyre_commands.
///
/// Generated from gyre_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/commands/LocalGenerated/MODEL_.h"
#include "OrvelCommands/commands/LocalGenerated/ELEMENT_GROUP_.h"
#include "OrvelCommands/commands/LocalGenerated/FACE_GROUP_.h"
#include "OrvelCommands/commands/LocalGenerated/NODE_GROUP_.h"
#include "OrvelCommands/commands/LocalGenerated/DV_.h"
#include "OrvelCommands/commands/LocalGenerated/DRESP_.h"
#include "OrvelCommands/commands/LocalGenerated/OPERATOR_.h"
#include "OrvelCommands/commands/LocalGenerated/OBJ_FUNC_.h"
#include "OrvelCommands/commands/LocalGenerated/CONSTRAINT_.h"
#include "OrvelCommands/commands/LocalGenerated/CS_.h"
#include "OrvelCommands/commands/LocalGenerated/DV_CONSTRAINT_.h"
#include "OrvelCommands/commands/LocalGenerated/MONITOR_.h"
#include "OrvelCommands/commands/LocalGenerated/ALGO_.h"
#include "OrvelCommands/commands/LocalGenerated/OPT_PARAM_.h"
#include "OrvelCommands/commands/LocalGenerated/STOP_.h"
#include "OrvelCommands/commands/LocalGenerated/MESH_SMOOTH_.h"
#include "OrvelCommands/commands/LocalGenerated/FILTER_.h"
#include "OrvelCommands/commands/LocalGenerated/PRE_PARAM_.h"
#include "OrvelCommands/commands/LocalGenerated/AS_TOPO_OC_.h"
#include "OrvelCommands/commands/LocalGenerated/AS_TOPO_SENS_.h"
#include "OrvelCommands/commands/LocalGenerated/AS_SHAPE_SENS_.h"
#include "OrvelCommands/commands/LocalGenerated/FLOWPATHS_.h"
#include "OrvelCommands/commands/LocalGenerated/OUTPUT_.h"
#include "OrvelCommands/commands/LocalGenerated/SCALING_CURVE_.h"
