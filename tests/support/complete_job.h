/// \file
/// A fluid job that has commands of all 25 kinds and uses every reference between them.
#pragma once

#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/required_commands.h"

#include <string>
#include <vector>

/// The required commands and:
/// - `ELEMENT_GROUP_` "duct", `FACE_GROUP_` "walls", `NODE_GROUP_` "corners"
/// - `DV_` "variable" to the filters "fine", "coarse" and the variables "variable", "other"; "other" to nothing
/// - `DRESP_` "volume" to "mirror"; "pressure" to nothing
/// - `OPERATOR_` "sum" to the responses "volume", "pressure", "volume" and the operators "sum", "norm"; "norm" to
///   nothing
/// - `OBJ_FUNC_` "objective" to "volume", "sum" and the filter "coarse"
/// - `CONSTRAINT_` "limit" to "pressure", "norm" and the filters "fine", "fine"; "bare" to nothing
/// - `CS_` "axes", `SCALING_CURVE_` "ramp", `FILTER_` "fine", "coarse"
/// - `DV_CONSTRAINT_` "mirror" to "axes" and "ramp"; "stamp" to nothing
/// - `MONITOR_` "watch" to "pressure"
/// - `ALGO_` "algorithm" to "limit", "bare"; "stamp", "mirror"; "laplace"; "watch", "watch"
/// - `MESH_SMOOTH_` "laplace" to "coarse" and "stamp"; "plain" to nothing
/// - `AS_SHAPE_SENS_` "settings" to the filters "coarse", "fine"
/// - `FLOWPATHS_` "paths", `OUTPUT_` "picture" and `SMOOTH_` "surface" with values
inline RecordingStorage CompleteJob()
{
  RecordingStorage job;
  AddRequiredCommands(job);

  auto& duct = job.Command("ELEMENT_GROUP_", "duct");
  duct["LIST_"] = {std::vector<int>{1, 2, 3}};
  duct["MERGE_"] = {std::string("bend"), std::string("inlet")};
  job.Command("FACE_GROUP_", "walls")["XOR_"] = {std::string("lid")};
  job.Command("NODE_GROUP_", "corners")["SUBTRACT_"] = {std::string("edge")};

  auto& variable = job.Command("DV_", "variable");
  variable["ELEMENT_GROUP_"] = {std::string("duct")};
  variable["INITIAL_"] = {0.4};
  variable["FILTER_"] = {Ref{"fine"}, Ref{"coarse"}};
  variable["DV_"] = {Ref{"variable"}, Ref{"other"}};
  job.Command("DV_", "other");

  job.Command("DRESP_", "volume")["DV_CONSTRAINT_"] = {Ref{"mirror"}};
  job.Command("DRESP_", "pressure")["FACE_GROUP_"] = {std::string("walls")};

  auto& sum = job.Command("OPERATOR_", "sum");
  sum["DRESP_"] = {Ref{"volume"}, Ref{"pressure"}, Ref{"volume"}};
  sum["DRESP_WEIGHT_"] = {1.0, 2.0, 0.5};
  sum["OPERATOR_"] = {Ref{"sum"}, Ref{"norm"}};
  job.Command("OPERATOR_", "norm");

  auto& objective = job.Command("OBJ_FUNC_", "objective");
  objective["DRESP_"] = {Ref{"volume"}};
  objective["OPERATOR_"] = {Ref{"sum"}};
  objective["FILTER_"] = {Ref{"coarse"}};

  auto& limit = job.Command("CONSTRAINT_", "limit");
  limit["DRESP_"] = {Ref{"pressure"}};
  limit["OPERATOR_"] = {Ref{"norm"}};
  limit["FILTER_"] = {Ref{"fine"}, Ref{"fine"}};
  job.Command("CONSTRAINT_", "bare");

  job.Command("CS_", "axes")["X_ORIGIN_"] = {1.0};

  auto& mirror = job.Command("DV_CONSTRAINT_", "mirror");
  mirror["NODE_GROUP_"] = {std::string("corners")};
  mirror["CS_"] = {Ref{"axes"}};
  mirror["SCALING_CURVE_"] = {Ref{"ramp"}};
  job.Command("DV_CONSTRAINT_", "stamp");

  job.Command("MONITOR_", "watch")["DRESP_"] = {Ref{"pressure"}};

  auto& algorithm = job.Command("ALGO_", "algorithm");
  algorithm["CONSTRAINT_"] = {Ref{"limit"}, Ref{"bare"}};
  algorithm["DV_CONSTRAINT_"] = {Ref{"stamp"}, Ref{"mirror"}};
  algorithm["MESH_SMOOTH_"] = {Ref{"laplace"}};
  algorithm["MONITOR_"] = {Ref{"watch"}, Ref{"watch"}};

  auto& laplace = job.Command("MESH_SMOOTH_", "laplace");
  laplace["FACE_GROUP_"] = {std::string("walls")};
  laplace["FILTER_"] = {Ref{"coarse"}};
  laplace["DV_CONSTRAINT_"] = {Ref{"stamp"}};
  job.Command("MESH_SMOOTH_", "plain");

  job.Command("FILTER_", "fine")["NODE_GROUP_"] = {std::string("corners")};
  job.Command("FILTER_", "coarse");
  job.Command("AS_SHAPE_SENS_", "settings")["FILTER_"] = {Ref{"coarse"}, Ref{"fine"}};

  auto& paths = job.Command("FLOWPATHS_", "paths");
  paths["IN_"] = {std::string("inlet")};
  paths["OUT_"] = {std::string("outlet"), std::string("drain")};
  auto& picture = job.Command("OUTPUT_", "picture");
  picture["ITERATION_"] = {std::vector<int>{1, 10}};
  picture["CUTOFF_"] = {std::vector<double>{0.25, 0.75}};
  picture["ELEMENT_GROUP_"] = {std::string("duct")};
  job.Command("SCALING_CURVE_", "ramp");
  auto& surface = job.Command("SMOOTH_", "surface");
  surface["FORMAT_"] = {83, 66};
  surface["SLICE_X_"] = {0.5};
  return job;
}

/// What a storage with CompleteJob() is asked while an aggregate loads and links all of it.
inline std::vector<std::string> CallsOfAWholeLoad()
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  return storage.Calls();
}
