/// \file
/// The least that a fluid job needs to load, for tests that look at one kind of command within a job.
#pragma once

#include "support/RecordingStorage.h"

/// Adds a `MODEL_` "model", `OBJ_FUNC_` "objective", `ALGO_` "algorithm", `FLOWPATHS_` "paths" and what the `ALGO_`
/// refers to: `DV_` "variable", `OPT_PARAM_`, `STOP_`, `PRE_PARAM_`, `AS_TOPO_OC_`, `AS_TOPO_SENS_` and
/// `AS_SHAPE_SENS_`, each "settings". Keys that the test does not give keep their defaults.
inline void AddRequiredCommands(RecordingStorage& storage)
{
  storage.KeepOutputsOfAbsentKeys();
  for (const auto& [kind, id] : {std::pair{"MODEL_", "model"},
                                 {"OBJ_FUNC_", "objective"},
                                 {"FLOWPATHS_", "paths"},
                                 {"DV_", "variable"},
                                 {"OPT_PARAM_", "settings"},
                                 {"STOP_", "settings"},
                                 {"PRE_PARAM_", "settings"},
                                 {"AS_TOPO_OC_", "settings"},
                                 {"AS_TOPO_SENS_", "settings"},
                                 {"AS_SHAPE_SENS_", "settings"}})
  {
    storage.Command(kind, id);
  }
  auto& algorithm = storage.Command("ALGO_", "algorithm");
  algorithm["DV_"] = {Ref{"variable"}};
  algorithm["OBJ_FUNC_"] = {Ref{"objective"}};
  for (const char* kind : {"OPT_PARAM_", "STOP_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    algorithm[kind] = {Ref{"settings"}};
  }
}
