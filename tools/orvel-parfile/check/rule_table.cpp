#include "rule.h"

namespace rules
{

const Rule library{"library",
                   Severity::Error,
                   RuleScope::EveryJob,
                   "What the library says as it loads the job and checks its model ids.",
                   "What fails here fails in every module that reads the job. Loading stops at its first fault, so "
                   "this finding tells of "
                   "one; the other rules find all of them.",
                   "A job whose STOP_ converged lacks ITER_MAX_.",
                   "The same job with ITER_MAX_."};

const Rule impossible_name{
  "impossible-name",
  Severity::Error,
  RuleScope::EveryJob,
  "A name that the layout of the parameter file cannot hold.",
  "Kinds, ids and keys are names of groups and datasets. A \"/\" in one would mean a level more, and an empty name or "
  "\".\" the group above. Only a job description can hold such a name.",
  R"([NODE_GROUP_."outlet/rim"]
LIST_ = [20411, 20412])",
  R"([NODE_GROUP_.outlet_rim]
LIST_ = [20411, 20412])"};

const Rule foreign_object{
  "foreign-object",
  Severity::Warning,
  RuleScope::EveryJob,
  "An object that is no part of the layout of the parameter file.",
  "Attributes, links by name, groups below a command and datasets where a group belongs are read by no command and "
  "carried by no export. Only a parameter file that another program has written can hold them.",
  "The group /PARFILE/DV_/porosity has an attribute.",
  "The group /PARFILE/DV_/porosity has datasets alone."};

const Rule unknown_kind{"unknown-kind",
                        Severity::Error,
                        RuleScope::EveryJob,
                        "A kind of command that no command class reads.",
                        "Loading passes over it without a word: what its commands say has no effect.",
                        R"([STOPS_.converged]
ITER_MAX_ = 80)",
                        R"([STOP_.converged]
ITER_MAX_ = 80)"};

const Rule unknown_key{
  "unknown-key",
  Severity::Error,
  RuleScope::EveryJob,
  "A key that its command does not read.",
  "Loading passes over it without a word. Most often it is a key that was mistyped, and the value that it should set "
  "stays at what it was.",
  R"([MODEL_.bent_duct]
FILE_ = "mesh/bent_duct.cgns"
SOLVER_NAME_ = "incompressible_rans")",
  R"([MODEL_.bent_duct]
FILE_ = "mesh/bent_duct.cgns"
SOLVER_ = "incompressible_rans")"};

const Rule missing_key{"missing-key",
                       Severity::Error,
                       RuleScope::EveryJob,
                       "A key that is always read and is not there.",
                       "Loading reads the key without asking whether it is there, and fails.",
                       R"([STOP_.converged]
ITER_MIN_ = 20
RESIDUAL_OBJ_ = 1.0e-3
RESIDUAL_DV_ = 5.0e-3)",
                       R"([STOP_.converged]
ITER_MAX_ = 80
ITER_MIN_ = 20
RESIDUAL_OBJ_ = 1.0e-3
RESIDUAL_DV_ = 5.0e-3)"};

const Rule wrong_type{
  "wrong-type",
  Severity::Error,
  RuleScope::EveryJob,
  "A value of another type than its key has.",
  "HDF5 refuses to turn most types into others, so that loading fails; others it cuts, as a number with a fraction to "
  "a whole one. The order of bytes does not matter.",
  R"([OPT_PARAM_.run]
OPT_START_ = { type = "number", values = [1.0] })",
  R"([OPT_PARAM_.run]
OPT_START_ = 1)"};

const Rule wrong_count{"wrong-count",
                       Severity::Error,
                       RuleScope::EveryJob,
                       "No value, or several, where a key has one.",
                       "Without a value loading fails. Of several it takes the first and drops the others without a "
                       "word.",
                       R"([OPT_PARAM_.run]
OPT_START_ = { type = "integer", values = [1, 5] })",
                       R"([OPT_PARAM_.run]
OPT_START_ = 1)"};

const Rule not_an_enumerator{"not-an-enumerator",
                             Severity::Error,
                             RuleScope::EveryJob,
                             "A number or name that is no enumerator of its key.",
                             "Loading takes any number. What reads the command meets a case that it does not know.",
                             R"([SCALING_CURVE_.step]
TYPE_ = "HEAVISIDE")",
                             R"([SCALING_CURVE_.step]
TYPE_ = "HEAVYSIDE")"};

const Rule command_count{"command-count",
                         Severity::Error,
                         RuleScope::GyreJob,
                         "More or fewer commands of a kind than a job has.",
                         "Of MODEL_, OBJ_FUNC_, ALGO_ and FLOWPATHS_ a job has exactly one; with none or several "
                         "loading fails.",
                         R"([MODEL_.bent_duct]
FILE_ = "mesh/bent_duct.cgns"

[MODEL_.straight_duct]
FILE_ = "mesh/straight_duct.cgns"

[OBJ_FUNC_.minimal_loss]
[ALGO_.bend_optimization]
[FLOWPATHS_.through_the_bend])",
                         R"([MODEL_.bent_duct]
FILE_ = "mesh/bent_duct.cgns"

[OBJ_FUNC_.minimal_loss]
[ALGO_.bend_optimization]
[FLOWPATHS_.through_the_bend])"};

const Rule unresolved_reference{"unresolved-reference",
                                Severity::Error,
                                RuleScope::GyreJob,
                                "A reference to a command that is not there.",
                                "A job description with it becomes no parameter file. In a file it is a reference that "
                                "was never set, or whose target "
                                "was removed, and loading fails.",
                                R"([MONITOR_.swirl]
DRESP_ = "swirl_oulet"

[DRESP_.swirl_outlet])",
                                R"([MONITOR_.swirl]
DRESP_ = "swirl_outlet"

[DRESP_.swirl_outlet])"};

const Rule wrong_target{
  "wrong-target",
  Severity::Error,
  RuleScope::GyreJob,
  "A reference to a command of another kind.",
  "The library takes the id of the target alone and looks for it among the commands of the right kind: it fails, or "
  "takes another command than the file says.",
  R"([MONITOR_.swirl]
DRESP_ = { type = "reference", values = ["OPERATOR_/swirl_outlet"] }

[DRESP_.swirl_outlet]
[OPERATOR_.swirl_outlet])",
  R"([MONITOR_.swirl]
DRESP_ = "swirl_outlet"

[DRESP_.swirl_outlet]
[OPERATOR_.swirl_outlet])"};

const Rule unreachable_command{
  "unreachable-command",
  Severity::Warning,
  RuleScope::GyreJob,
  "A command that nothing reaches from ALGO_.",
  "It takes no part in the optimization: a reference to it was forgotten, or it is left over. Commands of kinds that "
  "no "
  "key refers to, such as MODEL_ or OUTPUT_, take part by being there. A reference to nothing may have meant any "
  "command of its kind, so that then none of this kind is found.",
  R"([ALGO_.bend_optimization]
STOP_ = "converged"

[STOP_.converged]
[STOP_.first_try])",
  R"([ALGO_.bend_optimization]
STOP_ = "converged"

[STOP_.converged])"};

const Rule reference_cycle{"reference-cycle",
                           Severity::Error,
                           RuleScope::GyreJob,
                           "Commands that refer to themselves in a circle.",
                           "Operators may combine operators and design variables may merge design variables, but a "
                           "value that needs itself cannot "
                           "be computed. Loading does not notice; what walks the commands never ends.",
                           R"([OPERATOR_.cost]
OPERATOR_ = ["loss"]
OPERATOR_WEIGHT_ = [1.0]

[OPERATOR_.loss]
OPERATOR_ = ["cost"]
OPERATOR_WEIGHT_ = [1.0])",
                           R"([OPERATOR_.cost]
OPERATOR_ = ["loss"]
OPERATOR_WEIGHT_ = [1.0]

[OPERATOR_.loss])"};

const Rule list_lengths{
  "list-lengths",
  Severity::Error,
  RuleScope::EveryJob,
  "Lists that stand beside each other with different lengths.",
  "Each response and operator has its weight, each group its value, at the same place of the "
  "other list. Loading does not compare them, and a place without its counterpart has no meaning.",
  R"([OPERATOR_.loss]
DRESP_ = ["main", "side"]
DRESP_WEIGHT_ = [0.8]

[DRESP_.main]
[DRESP_.side])",
  R"([OPERATOR_.loss]
DRESP_ = ["main", "side"]
DRESP_WEIGHT_ = [0.8, 0.2]

[DRESP_.main]
[DRESP_.side])"};

const Rule response_or_operator{
  "response-or-operator",
  Severity::Error,
  RuleScope::GyreJob,
  "Both or neither of DRESP_ and OPERATOR_ in an objective or constraint.",
  "An objective and a constraint are about one value, a response or an operator. Loading takes both or none; which of "
  "the two counts is left to what reads the command.",
  R"([OBJ_FUNC_.minimal_loss]
DRESP_ = "swirl_outlet"
OPERATOR_ = "loss"

[DRESP_.swirl_outlet]
[OPERATOR_.loss])",
  R"([OBJ_FUNC_.minimal_loss]
OPERATOR_ = "loss"

[DRESP_.swirl_outlet]
[OPERATOR_.loss])"};

const Rule limits{
  "limits",
  Severity::Error,
  RuleScope::GyreJob,
  "A lower limit above its upper limit.",
  "No value lies between such limits. It is found for every key that ends with MIN_ or LOW_ and the one "
  "of the same name with MAX_ or UP_; equal limits are good.",
  R"([STOP_.converged]
ITER_MIN_ = 80
ITER_MAX_ = 20)",
  R"([STOP_.converged]
ITER_MIN_ = 20
ITER_MAX_ = 80)"};

const Rule no_basis{
  "no-basis",
  Severity::Error,
  RuleScope::GyreJob,
  "Vectors of a coordinate system that are no basis.",
  "Three vectors span the space unless one is zero or all lie in one plane; otherwise a point has no coordinates. They "
  "count as lying in one plane when the unit vectors along them span less than a millionth of a cube. They need not "
  "stand at right angles.",
  R"([CS_.outlet]
X_VEC1_ = 1.0
Y_VEC1_ = 0.0
Z_VEC1_ = 0.0
X_VEC2_ = 0.0
Y_VEC2_ = 1.0
Z_VEC2_ = 0.0
X_VEC3_ = 1.0
Y_VEC3_ = 1.0
Z_VEC3_ = 0.0)",
  R"([CS_.outlet]
X_VEC1_ = 1.0
Y_VEC1_ = 0.0
Z_VEC1_ = 0.0
X_VEC2_ = 0.0
Y_VEC2_ = 1.0
Z_VEC2_ = 0.0
X_VEC3_ = 1.0
Y_VEC3_ = 1.0
Z_VEC3_ = 1.0)"};

const Rule unknown_model_id{"unknown-model-id",
                            Severity::Error,
                            RuleScope::GyreJob,
                            "A name that the model does not know. Needs --model-ids.",
                            "The job fails as soon as it asks the model for the name.",
                            R"(# The model knows the element group package_space.
[ELEMENT_GROUP_.design_space]
MERGE_ = ["packge_space"])",
                            R"(# The model knows the element group package_space.
[ELEMENT_GROUP_.design_space]
MERGE_ = ["package_space"])"};

const Rule unused_group{
  "unused-group",
  Severity::Warning,
  RuleScope::GyreJob,
  "A group command that no other command names.",
  "The group is built for nothing: a name of it was forgotten or mistyped, or it is left over. The plain names in the "
  "keys of a smoothing command count too.",
  R"([NODE_GROUP_.rim]
LIST_ = [20411, 20412])",
  R"([NODE_GROUP_.rim]
LIST_ = [20411, 20412]

[MESH_SMOOTH_.rim]
NODE_GROUP_ = "rim")"};

const Rule unused_model_group{
  "unused-model-group",
  Severity::Note,
  RuleScope::GyreJob,
  "A name of the model that the job never uses. Needs --model-ids.",
  "Most models have more groups than a job needs. It is told because a forgotten group, such as one that must stay "
  "free, "
  "is not seen anywhere else. An unknown name may have meant any name of its list, so that then none of this list "
  "is found.",
  R"(# The model knows the element group package_space.
[MODEL_.bent_duct])",
  R"(# The model knows the element group package_space.
[ELEMENT_GROUP_.design_space]
MERGE_ = ["package_space"])"};

}  // namespace rules

const std::vector<const Rule*>& AllRules()
{
  static const std::vector<const Rule*> all = {&rules::library,
                                               &rules::impossible_name,
                                               &rules::foreign_object,
                                               &rules::unknown_kind,
                                               &rules::unknown_key,
                                               &rules::missing_key,
                                               &rules::wrong_type,
                                               &rules::wrong_count,
                                               &rules::not_an_enumerator,
                                               &rules::command_count,
                                               &rules::unresolved_reference,
                                               &rules::wrong_target,
                                               &rules::unreachable_command,
                                               &rules::reference_cycle,
                                               &rules::list_lengths,
                                               &rules::response_or_operator,
                                               &rules::limits,
                                               &rules::no_basis,
                                               &rules::unknown_model_id,
                                               &rules::unused_group,
                                               &rules::unused_model_group};
  return all;
}
