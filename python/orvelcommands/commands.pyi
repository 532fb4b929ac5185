# Generated from gyre_commands.toml and smooth_commands.toml
# by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
from enum import IntEnum

from orvelcommands import commands as _commands

class OrvelCommand:
    @property
    def ID_NAME_(self) -> str: ...

class MODEL_(OrvelCommand):
    """Model that the job works on: the file that holds it and the solver that it belongs to."""

    @property
    def FILE_(self) -> str:
        """File that holds the model."""
    @property
    def SOLVER_(self) -> str | None:
        """Solver that the model belongs to."""

class ELEMENT_GROUP_(OrvelCommand):
    """Recipe for a group of elements: listed numbers and operations with other element groups."""

    @property
    def LIST_(self) -> tuple[int, ...] | None:
        """Numbers of the elements that are listed one by one."""
    @property
    def MERGE_(self) -> tuple[str, ...]:
        """Element groups of the model that take part by merge."""
    @property
    def INTERSECT_(self) -> tuple[str, ...]:
        """Element groups of the model that take part by intersection."""
    @property
    def XOR_(self) -> tuple[str, ...]:
        """Element groups of the model that take part by exclusive or."""
    @property
    def SUBTRACT_(self) -> tuple[str, ...]:
        """Element groups of the model that are subtracted."""

class FACE_GROUP_(OrvelCommand):
    """Recipe for a group of faces: listed numbers and operations with other face groups."""

    @property
    def LIST_(self) -> tuple[int, ...] | None:
        """Numbers of the faces that are listed one by one."""
    @property
    def MERGE_(self) -> tuple[str, ...]:
        """Face groups of the model that take part by merge."""
    @property
    def INTERSECT_(self) -> tuple[str, ...]:
        """Face groups of the model that take part by intersection."""
    @property
    def XOR_(self) -> tuple[str, ...]:
        """Face groups of the model that take part by exclusive or."""
    @property
    def SUBTRACT_(self) -> tuple[str, ...]:
        """Face groups of the model that are subtracted."""

class NODE_GROUP_(OrvelCommand):
    """Recipe for a group of nodes: listed numbers and operations with other node groups."""

    @property
    def LIST_(self) -> tuple[int, ...] | None:
        """Numbers of the nodes that are listed one by one."""
    @property
    def MERGE_(self) -> tuple[str, ...]:
        """Node groups of the model that take part by merge."""
    @property
    def INTERSECT_(self) -> tuple[str, ...]:
        """Node groups of the model that take part by intersection."""
    @property
    def XOR_(self) -> tuple[str, ...]:
        """Node groups of the model that take part by exclusive or."""
    @property
    def SUBTRACT_(self) -> tuple[str, ...]:
        """Node groups of the model that are subtracted."""

class DV_(OrvelCommand):
    """Design variable: the group whose values the optimization changes, its start value and its filters."""

    class Enum_TYPE_(IntEnum):
        """What one variable stands for."""

        AUTO = 65
        DENSITY = 68
        DETACHED = 69
        NODAL = 78
        NODAL_VECTOR = 86

    @property
    def ELEMENT_GROUP_(self) -> str | None:
        """Elements whose values the optimization changes, such as their densities."""
    @property
    def NODE_GROUP_(self) -> str | None:
        """Nodes whose values the optimization changes, such as their positions."""
    @property
    def INITIAL_(self) -> float:
        """Start value of every variable."""
    @property
    def INITIAL_DV_FIELD_(self) -> str | None:
        """Field of start values, as plain text that is not checked against the model."""
    @property
    def FILTER_(self) -> tuple[_commands.FILTER_, ...]:
        """Filters that act on the variable, in order."""
    @property
    def TYPE_(self) -> Enum_TYPE_:
        """What one variable stands for."""
    @property
    def DV_(self) -> tuple[_commands.DV_, ...]:
        """Design variables that this one merges; empty unless it stands for several."""

class DRESP_(OrvelCommand):
    """Design response: a quantity of the analysis to minimise, to constrain or merely to watch."""

    class Enum_TYPE_(IntEnum):
        """Quantity of the analysis, such as a pressure drop, a swirl, a displacement or the volume."""

        DISP_ABS = 8
        ROT_ABS = 9
        ROT_X = 11
        ROT_Y = 13
        ROT_Z = 15
        DISP_X = 17
        DISP_Y = 19
        DISP_Z = 21
        DYN_FREQ = 26
        ENERGY_STIFF_MEASURE = 29
        INTERNAL_FORCE_ABS = 60
        INTERNAL_FORCE_X = 62
        INTERNAL_FORCE_Y = 64
        INTERNAL_FORCE_Z = 66
        INTERNAL_MOMENT_ABS = 68
        INTERNAL_MOMENT_X = 70
        INTERNAL_MOMENT_Y = 72
        INTERNAL_MOMENT_Z = 74
        REACTION_FORCE_ABS = 87
        REACTION_FORCE_X = 89
        REACTION_FORCE_Y = 91
        REACTION_FORCE_Z = 93
        REACTION_MOMENT_ABS = 95
        REACTION_MOMENT_X = 97
        REACTION_MOMENT_Y = 99
        REACTION_MOMENT_Z = 101
        SENSITIVITY_ONF = 106
        VOLUME = 146
        CUSTOM = 1000
        PRESSURE_DROP = 1001
        UNIFORMITY = 1002
        SWIRL = 1003
        TUMBLE = 1004
        BACKFLOW = 1005

    class Enum_UPDATE_TYPE_(IntEnum):
        """Whether the value is calculated or received."""

        CALCULATED = 67
        RECEIVED = 82

    @property
    def TYPE_(self) -> Enum_TYPE_:
        """Quantity of the analysis, such as a pressure drop, a swirl, a displacement or the volume."""
    @property
    def UPDATE_TYPE_(self) -> Enum_UPDATE_TYPE_:
        """Whether the value is calculated or received."""
    @property
    def UPDATE_ID_(self) -> str:
        """Name under which the value is updated, as plain text that is not checked against the model."""
    @property
    def UPDATE_INDEX_(self) -> int:
        """Index that goes with the name under which the value is updated."""
    @property
    def FACE_GROUP_(self) -> str | None:
        """Faces on which the response is taken."""
    @property
    def FACE_GROUP_ADD_(self) -> str | None:
        """Second group of faces on which the response is taken."""
    @property
    def ELEMENT_GROUP_(self) -> str | None:
        """Elements on which the response is taken."""
    @property
    def NODE_GROUP_(self) -> str | None:
        """Nodes on which the response is taken."""
    @property
    def WRITE_INTERVAL_(self) -> int:
        """Interval of writing in the run that computes the response."""
    @property
    def LOADCASE_(self) -> int:
        """Number of the load case on which the response is taken."""
    @property
    def ITER_MAX_(self) -> int:
        """Most iterations of the run that computes the response."""
    @property
    def ITER_MIN_(self) -> int:
        """Fewest iterations of the run that computes the response; not compared with the most."""
    @property
    def RESIDUAL_(self) -> float:
        """Residual limit of the run that computes the response."""
    @property
    def ADJOINT_RESIDUAL_(self) -> float:
        """Residual limit of the adjoint run."""
    @property
    def ADJOINT_DEVIATION_(self) -> float:
        """Deviation limit of the adjoint run."""
    @property
    def OBJECTIVE_DEVIATION_(self) -> float:
        """Deviation limit of the objective."""
    @property
    def DV_CONSTRAINT_(self) -> _commands.DV_CONSTRAINT_ | None:
        """Restriction on the design variables that belongs to the response."""
    @property
    def FILE_(self) -> str | None:
        """File that belongs to the response."""
    @property
    def CS_REF_(self) -> str | None:
        """Coordinate system of the model for the response, not one defined in the parameter file."""

class OPERATOR_(OrvelCommand):
    """Operator: combines design responses and other operators, each with its weight, into one value."""

    class Enum_TYPE_(IntEnum):
        """How the terms are combined: as a weighted sum, a norm or a maximum."""

        P_MEAN_NORM = 77
        P_NORM = 80
        WEIGHTED_SUM = 87
        MAX = 88
        P_MEAN_NORM_C = 109
        P_NORM_C = 112

    class Enum_UPDATE_TYPE_(IntEnum):
        """Whether the value is calculated or received."""

        CALCULATED = 67
        RECEIVED = 82

    @property
    def TYPE_(self) -> Enum_TYPE_:
        """How the terms are combined: as a weighted sum, a norm or a maximum."""
    @property
    def UPDATE_TYPE_(self) -> Enum_UPDATE_TYPE_:
        """Whether the value is calculated or received."""
    @property
    def UPDATE_ID_(self) -> str:
        """Name under which the value is updated, as plain text that is not checked against the model."""
    @property
    def UPDATE_INDEX_(self) -> int:
        """Index that goes with the name under which the value is updated."""
    @property
    def DRESP_(self) -> tuple[_commands.DRESP_, ...]:
        """Responses that are combined."""
    @property
    def DRESP_WEIGHT_(self) -> tuple[float, ...]:
        """Weights of the responses, in the same order; the two counts are not compared."""
    @property
    def OPERATOR_(self) -> tuple[_commands.OPERATOR_, ...]:
        """Operators that are combined, so that operators form a tree; cycles are not looked for."""
    @property
    def OPERATOR_WEIGHT_(self) -> tuple[float, ...]:
        """Weights of the operators, in the same order; the two counts are not compared."""
    @property
    def FACTOR_(self) -> float:
        """Factor that scales the combined value."""

class OBJ_FUNC_(OrvelCommand):
    """Objective of the optimization: the response or operator to minimise, its scaling and its filters."""

    class Enum_TARGET_(IntEnum):
        """Direction of the optimization; an objective is always minimised."""

        MIN = 77

    class Enum_SENSSCALING_TYPE_(IntEnum):
        """How the sensitivities of the objective are scaled."""

        NONE = 78
        NORMED_TO_ONE = 79
        SCALED = 83

    @property
    def DRESP_(self) -> _commands.DRESP_ | None:
        """Response to minimise."""
    @property
    def OPERATOR_(self) -> _commands.OPERATOR_ | None:
        """Operator to minimise in place of a response."""
    @property
    def TARGET_(self) -> Enum_TARGET_:
        """Direction of the optimization; an objective is always minimised."""
    @property
    def SENSSCALING_TYPE_(self) -> Enum_SENSSCALING_TYPE_:
        """How the sensitivities of the objective are scaled."""
    @property
    def SENSSCALING_VALUE_(self) -> float:
        """Value that goes with the scaling of the sensitivities."""
    @property
    def FILTER_(self) -> tuple[_commands.FILTER_, ...]:
        """Filters that act on the sensitivities, in order."""

class CONSTRAINT_(OrvelCommand):
    """Constraint of the optimization: a bound on a response or an operator."""

    class Enum_TYPE_(IntEnum):
        """Whether the bound is an upper or a lower one."""

        GREATER_EQUAL = 71
        LESS_EQUAL = 76

    class Enum_MAGNITUDE_(IntEnum):
        """Whether the bound is an absolute or a relative value."""

        ABS = 65
        REL = 82
        REL_VALUE = 86

    class Enum_SENSSCALING_TYPE_(IntEnum):
        """How the sensitivities of the constraint are scaled."""

        NONE = 78
        NORMED_TO_ONE = 79
        SCALED = 83

    @property
    def DRESP_(self) -> _commands.DRESP_ | None:
        """Response that is bounded."""
    @property
    def OPERATOR_(self) -> _commands.OPERATOR_ | None:
        """Operator that is bounded in place of a response."""
    @property
    def TYPE_(self) -> Enum_TYPE_:
        """Whether the bound is an upper or a lower one."""
    @property
    def MAGNITUDE_(self) -> Enum_MAGNITUDE_:
        """Whether the bound is an absolute or a relative value."""
    @property
    def VALUE_(self) -> float:
        """Bound of the constraint, absolute or relative as its magnitude says."""
    @property
    def COEFFICIENT_(self) -> float:
        """Coefficient of the constraint, handed on to the optimizer unread."""
    @property
    def A_MINMAX_COEFFICIENT_(self) -> float:
        """Coefficient a of a min-max formulation, handed on to the optimizer unread."""
    @property
    def SENSSCALING_TYPE_(self) -> Enum_SENSSCALING_TYPE_:
        """How the sensitivities of the constraint are scaled."""
    @property
    def SENSSCALING_VALUE_(self) -> float:
        """Value that goes with the scaling of the sensitivities."""
    @property
    def FILTER_(self) -> tuple[_commands.FILTER_, ...]:
        """Filters that act on the sensitivities, in order."""

class CS_(OrvelCommand):
    """Coordinate system defined in the parameter file: a type, an origin and three axis vectors."""

    class Enum_TYPE_(IntEnum):
        """Whether the coordinates are Cartesian, cylindrical or spherical."""

        CYLINDRICAL = 67
        CARTESIAN = 82
        SPHERICAL = 83

    @property
    def TYPE_(self) -> Enum_TYPE_:
        """Whether the coordinates are Cartesian, cylindrical or spherical."""
    @property
    def X_ORIGIN_(self) -> float | None:
        """X coordinate of the origin, 0 if left out."""
    @property
    def Y_ORIGIN_(self) -> float | None:
        """Y coordinate of the origin, 0 if left out."""
    @property
    def Z_ORIGIN_(self) -> float | None:
        """Z coordinate of the origin, 0 if left out."""
    @property
    def X_VEC1_(self) -> float:
        """X component of the first axis vector."""
    @property
    def Y_VEC1_(self) -> float:
        """Y component of the first axis vector."""
    @property
    def Z_VEC1_(self) -> float:
        """Z component of the first axis vector."""
    @property
    def X_VEC2_(self) -> float:
        """X component of the second axis vector."""
    @property
    def Y_VEC2_(self) -> float:
        """Y component of the second axis vector."""
    @property
    def Z_VEC2_(self) -> float:
        """Z component of the second axis vector."""
    @property
    def X_VEC3_(self) -> float:
        """X component of the third axis vector."""
    @property
    def Y_VEC3_(self) -> float:
        """Y component of the third axis vector."""
    @property
    def Z_VEC3_(self) -> float:
        """Z component of the third axis vector."""

class DV_CONSTRAINT_(OrvelCommand):
    """Restriction on the design variables, such as a symmetry, a demolding direction or a member size."""

    class Enum_DVC_TYPE_(IntEnum):
        """Which restriction this is; many of the other keys mean something only for some of them."""

        STAMP = 65
        LSF_INIT = 66
        CYCLIC_SYMMETRY = 67
        DUMMY = 68
        DEMOLD = 69
        FILE = 70
        SCALING_CURVE = 71
        FILTER = 73
        PLANE_LINK = 76
        MEMBERSIZE = 77
        LSF_SCALING = 78
        OPT_DIR = 79
        PLANE_SYMMETRY = 80
        SURF_DIR_SMOOTH = 83
        TRANSITION = 84
        LEVELSET = 86
        CYCLIC_PLANE_SYMMETRY = 89

    class Enum_FEASIBLE_START_(IntEnum):
        """Whether the start is a feasible or an infeasible one."""

        FEASIBLE = 70
        INFEASIBLE = 73

    class Enum_SAVE_(IntEnum):
        """Switch for saving, handed on unread."""

        NO = 78
        YES = 89

    class Enum_DUMPOPTVALUES_(IntEnum):
        """Switch for dumping the values of the optimization."""

        NO = 78
        YES = 89

    class Enum_FILTER_TYPE_(IntEnum):
        """Kind of filter, for a restriction that filters."""

        PROB_DENS = 80
        SIGMUND = 83

    class Enum_MEMBERSIZE_TYPE_(IntEnum):
        """Whether a member size is a largest or a smallest one."""

        MAX = 65
        MIN = 73

    class Enum_AGGREGATION_METHOD_(IntEnum):
        """How many constraints are aggregated into few, such as by a norm or a soft maximum."""

        PN = 65
        PMN = 66
        KS = 67
        SOFTMAX = 68
        NONE = 78
        PN_C = 97
        PMN_C = 98

    class Enum_X_DOF_(IntEnum):
        """Whether the degree of freedom in X is free or fixed."""

        FREE = 69
        FIX = 88

    class Enum_Y_DOF_(IntEnum):
        """Whether the degree of freedom in Y is free or fixed."""

        FREE = 69
        FIX = 88

    class Enum_Z_DOF_(IntEnum):
        """Whether the degree of freedom in Z is free or fixed."""

        FREE = 69
        FIX = 88

    class Enum_CHECK_ELGR_BLOCKING_(IntEnum):
        """Side on which blocking by the element group is checked: negative, positive or both."""

        BOTH = 66
        NEG = 78
        POS = 80

    class Enum_MID_PLANE_(IntEnum):
        """How a mid plane is given: by the point or not at all."""

        POINT = 80
        NONE = 95

    @property
    def PATCH_ID_(self) -> str:
        """Patch id, as plain text that is handed on unread and not checked against the model."""
    @property
    def DVC_TYPE_(self) -> Enum_DVC_TYPE_:
        """Which restriction this is; many of the other keys mean something only for some of them."""
    @property
    def NODE_GROUP_(self) -> str | None:
        """Nodes that the restriction acts on."""
    @property
    def CHECK_GROUP_(self) -> str | None:
        """Nodes that the restriction checks."""
    @property
    def REFERENCE_GROUP_(self) -> str | None:
        """Nodes that the restriction takes as its reference."""
    @property
    def ELEMENT_GROUP_(self) -> str | None:
        """Elements that the restriction acts on."""
    @property
    def X_POINT_(self) -> float | None:
        """X coordinate of the point of the restriction."""
    @property
    def Y_POINT_(self) -> float | None:
        """Y coordinate of the point of the restriction."""
    @property
    def Z_POINT_(self) -> float | None:
        """Z coordinate of the point of the restriction."""
    @property
    def X_DIRECTION_(self) -> float | None:
        """X component of the direction of the restriction."""
    @property
    def Y_DIRECTION_(self) -> float | None:
        """Y component of the direction of the restriction."""
    @property
    def Z_DIRECTION_(self) -> float | None:
        """Z component of the direction of the restriction."""
    @property
    def X_START_DIRECTION_(self) -> float | None:
        """X component of the start direction of the restriction."""
    @property
    def Y_START_DIRECTION_(self) -> float | None:
        """Y component of the start direction of the restriction."""
    @property
    def Z_START_DIRECTION_(self) -> float | None:
        """Z component of the start direction of the restriction."""
    @property
    def ANGLE_(self) -> float | None:
        """Angle of the restriction, handed on without conversion."""
    @property
    def FEASIBLE_START_(self) -> Enum_FEASIBLE_START_:
        """Whether the start is a feasible or an infeasible one."""
    @property
    def SAVE_(self) -> Enum_SAVE_:
        """Switch for saving, handed on unread."""
    @property
    def DUMPOPTVALUES_(self) -> Enum_DUMPOPTVALUES_:
        """Switch for dumping the values of the optimization."""
    @property
    def RADIUS_(self) -> float | None:
        """Radius of the restriction."""
    @property
    def FILTER_TYPE_(self) -> Enum_FILTER_TYPE_ | None:
        """Kind of filter, for a restriction that filters."""
    @property
    def MEMBERSIZE_TYPE_(self) -> Enum_MEMBERSIZE_TYPE_ | None:
        """Whether a member size is a largest or a smallest one."""
    @property
    def AGGREGATION_METHOD_(self) -> Enum_AGGREGATION_METHOD_:
        """How many constraints are aggregated into few, such as by a norm or a soft maximum."""
    @property
    def AGGREGATION_PARAMETER_(self) -> float:
        """Parameter of the aggregation, such as the exponent of a norm."""
    @property
    def AGGREGATION_NUM_CONSTRAINTS_(self) -> int:
        """Number of constraints of the aggregation; its sign is not checked."""
    @property
    def CS_(self) -> _commands.CS_ | None:
        """Coordinate system in which the restriction is told."""
    @property
    def X_DOF_(self) -> Enum_X_DOF_ | None:
        """Whether the degree of freedom in X is free or fixed."""
    @property
    def Y_DOF_(self) -> Enum_Y_DOF_ | None:
        """Whether the degree of freedom in Y is free or fixed."""
    @property
    def Z_DOF_(self) -> Enum_Z_DOF_ | None:
        """Whether the degree of freedom in Z is free or fixed."""
    @property
    def CHECK_ELGR_BLOCKING_(self) -> Enum_CHECK_ELGR_BLOCKING_:
        """Side on which blocking by the element group is checked: negative, positive or both."""
    @property
    def TOLERANCE_(self) -> float:
        """Tolerance of the restriction; no range is checked."""
    @property
    def SCALING_CURVE_(self) -> _commands.SCALING_CURVE_ | None:
        """Scaling curve of the restriction."""
    @property
    def MID_PLANE_(self) -> Enum_MID_PLANE_:
        """How a mid plane is given: by the point or not at all."""

class MONITOR_(OrvelCommand):
    """Monitor: one design response that is watched during the run."""

    @property
    def DRESP_(self) -> _commands.DRESP_:
        """Response to watch."""

class ALGO_(OrvelCommand):
    """Optimization task: the strategy of the run and all commands that take part in it."""

    class Enum_STRATEGY_(IntEnum):
        """Strategy of the run: topology or shape optimization, by sensitivities or optimality criteria."""

        STRUCTURE_TOPO_SENS = 65
        TOPO_OC = 79
        SHAPE_SENS = 83
        TOPO_SENS = 84

    class Enum_DEVELOPER_OUTPUT_(IntEnum):
        """Switch for output that is meant for developers."""

        NO = 70
        YES = 84

    @property
    def STRATEGY_(self) -> Enum_STRATEGY_:
        """Strategy of the run: topology or shape optimization, by sensitivities or optimality criteria."""
    @property
    def DV_(self) -> _commands.DV_:
        """Design variable of the job; the merged one where a job names several."""
    @property
    def OBJ_FUNC_(self) -> _commands.OBJ_FUNC_:
        """Objective of the job."""
    @property
    def CONSTRAINT_(self) -> tuple[_commands.CONSTRAINT_, ...]:
        """Constraints of the job, in order."""
    @property
    def DV_CONSTRAINT_(self) -> tuple[_commands.DV_CONSTRAINT_, ...]:
        """Restrictions on the design variables, in order."""
    @property
    def OPT_PARAM_(self) -> _commands.OPT_PARAM_:
        """General parameters of the optimization."""
    @property
    def STOP_(self) -> _commands.STOP_:
        """Criteria that end the optimization."""
    @property
    def PRE_PARAM_(self) -> _commands.PRE_PARAM_:
        """Parameters of the pre-processing."""
    @property
    def MESH_SMOOTH_(self) -> tuple[_commands.MESH_SMOOTH_, ...]:
        """Smoothings of the mesh, in order."""
    @property
    def MONITOR_(self) -> tuple[_commands.MONITOR_, ...]:
        """Monitors of the run, in order."""
    @property
    def AS_TOPO_OC_(self) -> _commands.AS_TOPO_OC_:
        """Settings for topology optimization by optimality criteria; present with every strategy."""
    @property
    def AS_TOPO_SENS_(self) -> _commands.AS_TOPO_SENS_:
        """Settings for topology optimization by sensitivities; present with every strategy."""
    @property
    def AS_SHAPE_SENS_(self) -> _commands.AS_SHAPE_SENS_:
        """Settings for shape optimization by sensitivities; present with every strategy."""
    @property
    def DEVELOPER_OUTPUT_(self) -> Enum_DEVELOPER_OUTPUT_:
        """Switch for output that is meant for developers."""

class OPT_PARAM_(OrvelCommand):
    """General parameters of the optimization."""

    @property
    def STORE_INT_(self) -> tuple[int, ...] | None:
        """Integers of the store setting, read in one piece and handed on unread."""
    @property
    def OPT_START_(self) -> int:
        """Start of the optimization, a whole number that is handed on unread."""
    @property
    def SRC_SCALE_(self) -> float | None:
        """Scale of the source terms, handed on to the solver unread."""

class STOP_(OrvelCommand):
    """Criteria that end the optimization: limits of iterations and residuals."""

    @property
    def ITER_MAX_(self) -> int:
        """Most iterations of the optimization."""
    @property
    def ITER_MIN_(self) -> int:
        """Fewest iterations of the optimization; not compared with the most."""
    @property
    def RESIDUAL_OBJ_(self) -> float:
        """Residual of the objective at which the optimization ends."""
    @property
    def RESIDUAL_DV_(self) -> float:
        """Residual of the design variables at which the optimization ends."""

class MESH_SMOOTH_(OrvelCommand):
    """Smoothing of the mesh during the run, on a group of faces, nodes or elements."""

    class Enum_METHOD_(IntEnum):
        """How the mesh is smoothed or its nodes are restricted."""

        CONSTRAINED_LAPLACIAN = 67
        RESTRICT_DOF = 68
        LAPLACE = 76
        NONE = 78
        CHECK_PENETRATION = 80
        RESTRICT_NODES_ON_PLANE = 82
        TRANSITION = 84
        TUM = 85

    @property
    def METHOD_(self) -> Enum_METHOD_:
        """How the mesh is smoothed or its nodes are restricted."""
    @property
    def CYCLE_(self) -> int:
        """Cycle of the smoothing, a whole number; how many cycles are run is a key of its own."""
    @property
    def FACE_GROUP_(self) -> str | None:
        """Faces that the smoothing acts on."""
    @property
    def NODE_GROUP_(self) -> str | None:
        """Nodes that the smoothing acts on."""
    @property
    def ELEMENT_GROUP_(self) -> str | None:
        """Elements that the smoothing acts on."""
    @property
    def SMOOTH_CYCLES_(self) -> int:
        """Number of smoothing cycles."""
    @property
    def ALPHA_(self) -> float:
        """Parameter alpha of the method."""
    @property
    def BETA_(self) -> float:
        """Parameter beta of the method."""
    @property
    def FILTER_(self) -> _commands.FILTER_ | None:
        """Filter that belongs to the smoothing."""
    @property
    def DV_CONSTRAINT_(self) -> _commands.DV_CONSTRAINT_ | None:
        """Restriction on the design variables that belongs to the smoothing."""

class FILTER_(OrvelCommand):
    """Filter that design variables or sensitivities pass through, on a group of the model."""

    class Enum_METHOD_(IntEnum):
        """Method of the filter, such as a Sigmund filter, a symmetry or a demolding."""

        DA_NORMAL = 65
        BOUNDARY = 66
        BD_TRANSITION = 67
        DEMOLD = 68
        SIGMUND = 69
        SIGMUND_SURFACE = 70
        MAXIMUM_MEMBER = 77
        MEDIAN = 78
        DA_PLANE_NORMAL = 80
        SYMMETRY = 83
        DISTANCE_TO_BORDER = 100

    @property
    def PATCH_ID_(self) -> str:
        """Patch id, as plain text that is handed on unread and not checked against the model."""
    @property
    def METHOD_(self) -> Enum_METHOD_:
        """Method of the filter, such as a Sigmund filter, a symmetry or a demolding."""
    @property
    def RADIUS_(self) -> float:
        """Radius of the filter; no range is checked."""
    @property
    def X_DIRECTION_(self) -> float | None:
        """X component of the direction of the filter."""
    @property
    def Y_DIRECTION_(self) -> float | None:
        """Y component of the direction of the filter."""
    @property
    def Z_DIRECTION_(self) -> float | None:
        """Z component of the direction of the filter."""
    @property
    def X_POINT_(self) -> float | None:
        """X coordinate of the point of the filter."""
    @property
    def Y_POINT_(self) -> float | None:
        """Y coordinate of the point of the filter."""
    @property
    def Z_POINT_(self) -> float | None:
        """Z coordinate of the point of the filter."""
    @property
    def FACE_GROUP_(self) -> str | None:
        """Faces that the filter acts on."""
    @property
    def NODE_GROUP_(self) -> str | None:
        """Nodes that the filter acts on."""
    @property
    def ELEMENT_GROUP_(self) -> str | None:
        """Elements that the filter acts on."""
    @property
    def ALPHA_(self) -> float:
        """Parameter alpha of the method."""
    @property
    def BETA_(self) -> float:
        """Parameter beta of the method."""

class PRE_PARAM_(OrvelCommand):
    """Parameters of the pre-processing: fluid, limits of its run, backflow angle and switches for tracks."""

    class Enum_PTRACK_PRI_VRML_(IntEnum):
        """Switch for the PRI file of the tracks in VRML, handed on unread."""

        NO = 70
        YES = 84

    class Enum_PTRACK_VAL_VRML_(IntEnum):
        """Switch for the VAL file of the tracks in VRML, handed on unread."""

        NO = 70
        YES = 84

    class Enum_REF_VRML_(IntEnum):
        """Switch for the reference file in VRML, handed on unread."""

        NO = 70
        YES = 84

    class Enum_PTRACK_KEEP_INVALID_(IntEnum):
        """Switch for keeping invalid tracks."""

        NO = 70
        YES = 84

    class Enum_PTRACK_VRML_ADD_BOUNDS_(IntEnum):
        """Switch for adding the bounds to the VRML file of the tracks."""

        NO = 70
        YES = 84

    @property
    def PATCH_ID_(self) -> str:
        """Patch id, as plain text that is handed on unread and not checked against the model."""
    @property
    def VISCOSITY_(self) -> float:
        """Viscosity of the fluid, handed on without conversion."""
    @property
    def RESIDUAL_(self) -> float:
        """Residual limit of the pre-processing."""
    @property
    def ITER_MAX_(self) -> int:
        """Most iterations of the pre-processing."""
    @property
    def BACKFLOW_ANGLE_(self) -> int:
        """Angle for judging backflow, a whole number that is handed on without conversion."""
    @property
    def PTRACK_PRI_VRML_(self) -> Enum_PTRACK_PRI_VRML_:
        """Switch for the PRI file of the tracks in VRML, handed on unread."""
    @property
    def PTRACK_VAL_VRML_(self) -> Enum_PTRACK_VAL_VRML_:
        """Switch for the VAL file of the tracks in VRML, handed on unread."""
    @property
    def REF_VRML_(self) -> Enum_REF_VRML_:
        """Switch for the reference file in VRML, handed on unread."""
    @property
    def PTRACK_KEEP_INVALID_(self) -> Enum_PTRACK_KEEP_INVALID_:
        """Switch for keeping invalid tracks."""
    @property
    def PTRACK_VRML_ADD_BOUNDS_(self) -> Enum_PTRACK_VRML_ADD_BOUNDS_:
        """Switch for adding the bounds to the VRML file of the tracks."""

class AS_TOPO_OC_(OrvelCommand):
    """Settings for topology optimization by optimality criteria."""

    class Enum_SCALING_CURVE_TYPE_(IntEnum):
        """Form of the scaling curve."""

        LINEAR = 73
        LOG = 76
        CONVEX = 88

    @property
    def PATCH_ID_(self) -> str:
        """Patch id, as plain text that is handed on unread and not checked against the model."""
    @property
    def BT_(self) -> float:
        """Parameter bt of the algorithm, handed on unread."""
    @property
    def TA_MIN_(self) -> float:
        """Lower limit of the parameter ta of the algorithm, handed on unread."""
    @property
    def TA_MAX_(self) -> float:
        """Upper limit of the parameter ta of the algorithm, handed on unread."""
    @property
    def SCALING_CURVE_TYPE_(self) -> Enum_SCALING_CURVE_TYPE_:
        """Form of the scaling curve."""
    @property
    def SCALING_CURVE_UPDATE_ID_(self) -> str:
        """Name under which the scaling curve is updated, as plain text."""
    @property
    def SCALING_CURVE_MIN_(self) -> float:
        """Lower limit of the scaling curve."""
    @property
    def SCALING_CURVE_MAX_(self) -> float:
        """Upper limit of the scaling curve."""
    @property
    def SCALING_CURVE_PENALISATION_(self) -> float:
        """Penalisation of the scaling curve; no range is checked."""

class AS_TOPO_SENS_(OrvelCommand):
    """Settings for topology optimization by sensitivities: optimizer, move limits, primal and adjoint runs."""

    class Enum_ALGORITHM_(IntEnum):
        """Optimizer that updates the design variables."""

        STEEPEST = 67
        MMA = 77
        CSA = 80

    class Enum_MATH_KERNEL_(IntEnum):
        """Mathematical kernel of the optimizer: the internal one or MKL."""

        INTERNAL = 73
        MKL = 77

    class Enum_SCALING_CURVE_TYPE_(IntEnum):
        """Form of the scaling curve."""

        LINEAR = 73
        LOG = 76
        CONVEX = 88

    class Enum_ASYM_MOVE_(IntEnum):
        """Kind of the asymmetric move limits: original, conservative or custom ones."""

        CONSERVATIVE = 67
        ORIGINAL = 79
        CUSTOM = 83

    @property
    def PATCH_ID_(self) -> str:
        """Patch id, as plain text that is handed on unread and not checked against the model."""
    @property
    def ALGORITHM_(self) -> Enum_ALGORITHM_:
        """Optimizer that updates the design variables."""
    @property
    def MATH_KERNEL_(self) -> Enum_MATH_KERNEL_:
        """Mathematical kernel of the optimizer: the internal one or MKL."""
    @property
    def MIN_(self) -> float | None:
        """Lower bound of the design variables."""
    @property
    def MAX_(self) -> float | None:
        """Upper bound of the design variables."""
    @property
    def MOVE_(self) -> float:
        """Move limit of the design variables for one update."""
    @property
    def SCALING_CURVE_TYPE_(self) -> Enum_SCALING_CURVE_TYPE_:
        """Form of the scaling curve."""
    @property
    def SCALING_CURVE_UPDATE_ID_(self) -> str:
        """Name under which the scaling curve is updated, as plain text."""
    @property
    def SCALING_CURVE_MIN_(self) -> float:
        """Lower limit of the scaling curve."""
    @property
    def SCALING_CURVE_MAX_(self) -> float:
        """Upper limit of the scaling curve."""
    @property
    def SCALING_CURVE_PENALISATION_(self) -> float:
        """Penalisation of the scaling curve; no range is checked."""
    @property
    def ASYM_MOVE_(self) -> Enum_ASYM_MOVE_:
        """Kind of the asymmetric move limits: original, conservative or custom ones."""
    @property
    def ASYM_MOVE_LOW_(self) -> float:
        """Lower asymmetric move limit."""
    @property
    def ASYM_MOVE_UP_(self) -> float:
        """Upper asymmetric move limit."""
    @property
    def SUB_TOL_(self) -> float:
        """Tolerance of the subproblem, handed on to the optimizer unread."""
    @property
    def PRIMAL_ITER_MIN_(self) -> int:
        """Fewest iterations of the primal run; not compared with the most."""
    @property
    def PRIMAL_ITER_MAX_(self) -> int:
        """Most iterations of the primal run."""
    @property
    def PRIMAL_INTERVAL_(self) -> int:
        """Interval of the primal run, a whole number that is handed on to the solver unread."""
    @property
    def PRIMAL_RESIDUAL_(self) -> float:
        """Residual limit of the primal run."""
    @property
    def PRIMAL_DEVIATION_(self) -> float:
        """Deviation limit of the primal run."""
    @property
    def ADJOINT_ITER_MIN_(self) -> int:
        """Fewest iterations of the adjoint run; not compared with the most."""
    @property
    def ADJOINT_ITER_MAX_(self) -> int:
        """Most iterations of the adjoint run."""
    @property
    def ADJOINT_INTERVAL_(self) -> int:
        """Interval of the adjoint run, a whole number that is handed on to the solver unread."""
    @property
    def ADJOINT_DISC_(self) -> str:
        """Discretisation of the adjoint run, as text that is handed on to the solver unread."""
    @property
    def ADJOINT_DRIVER_(self) -> str:
        """Driver of the adjoint run, as text that is handed on to the solver unread."""
    @property
    def ADJOINT_CFL_(self) -> int:
        """CFL number of the adjoint run, dimensionless and whole."""
    @property
    def KEEP_INITIAL_(self) -> str:
        """Whether the initial solution is kept, as text that is handed on to the solver unread."""
    @property
    def KEEP_ADJOINT_(self) -> str:
        """Whether the adjoint solution is kept, as text that is handed on to the solver unread."""
    @property
    def SKIP_PRESSURE_SRC_(self) -> str:
        """Whether the pressure source is skipped, as text that is handed on to the solver unread."""
    @property
    def SKIP_TURBULENT_SRC_(self) -> str:
        """Whether the turbulent source is skipped, as text that is handed on to the solver unread."""

class AS_SHAPE_SENS_(OrvelCommand):
    """Settings for shape optimization by sensitivities: optimizer, move limits, filters and normals."""

    class Enum_ALGORITHM_(IntEnum):
        """Optimizer that updates the design variables, or a check by finite differences."""

        STEEPEST = 67
        FD_CHECK = 70
        MMA = 77
        CSA = 80

    class Enum_MATH_KERNEL_(IntEnum):
        """Mathematical kernel of the optimizer: the internal one or MKL."""

        INTERNAL = 73
        MKL = 77

    class Enum_SCALING_CURVE_TYPE_(IntEnum):
        """Form of the scaling curve."""

        LINEAR = 73
        LOG = 76
        CONVEX = 88

    class Enum_ASYM_MOVE_(IntEnum):
        """Kind of the asymmetric move limits: original, conservative or custom ones."""

        CONSERVATIVE = 67
        ORIGINAL = 79
        CUSTOM = 83

    class Enum_NORMAL_UPDATE_(IntEnum):
        """How surface normals follow the shape: the initial ones, incremental or updated ones."""

        INCREMENTAL = 67
        INITIAL = 73
        UPDATE = 85

    class Enum_DV_TYPE_(IntEnum):
        """Kind of the design variables: default or specific ones."""

        DEFAULT = 68
        SPECIFIC = 83

    @property
    def PATCH_ID_(self) -> str:
        """Patch id, as plain text that is handed on unread and not checked against the model."""
    @property
    def ALGORITHM_(self) -> Enum_ALGORITHM_:
        """Optimizer that updates the design variables, or a check by finite differences."""
    @property
    def MATH_KERNEL_(self) -> Enum_MATH_KERNEL_:
        """Mathematical kernel of the optimizer: the internal one or MKL."""
    @property
    def MIN_(self) -> float | None:
        """Lower bound of the design variables."""
    @property
    def MAX_(self) -> float | None:
        """Upper bound of the design variables."""
    @property
    def MOVE_(self) -> float:
        """Move limit of the design variables for one update."""
    @property
    def SCALING_CURVE_TYPE_(self) -> Enum_SCALING_CURVE_TYPE_:
        """Form of the scaling curve."""
    @property
    def SCALING_CURVE_UPDATE_ID_(self) -> str:
        """Name under which the scaling curve is updated, as plain text."""
    @property
    def SCALING_CURVE_MIN_(self) -> float:
        """Lower limit of the scaling curve."""
    @property
    def SCALING_CURVE_MAX_(self) -> float:
        """Upper limit of the scaling curve."""
    @property
    def SCALING_CURVE_PENALISATION_(self) -> float:
        """Penalisation of the scaling curve; no range is checked."""
    @property
    def ASYM_MOVE_(self) -> Enum_ASYM_MOVE_:
        """Kind of the asymmetric move limits: original, conservative or custom ones."""
    @property
    def ASYM_MOVE_LOW_(self) -> float:
        """Lower asymmetric move limit."""
    @property
    def ASYM_MOVE_UP_(self) -> float:
        """Upper asymmetric move limit."""
    @property
    def SUB_TOL_(self) -> float:
        """Tolerance of the subproblem, handed on to the optimizer unread."""
    @property
    def FILTER_(self) -> tuple[_commands.FILTER_, ...]:
        """Filters of the shape optimization, in order."""
    @property
    def NORMAL_UPDATE_(self) -> Enum_NORMAL_UPDATE_:
        """How surface normals follow the shape: the initial ones, incremental or updated ones."""
    @property
    def DV_TYPE_(self) -> Enum_DV_TYPE_:
        """Kind of the design variables: default or specific ones."""

class FLOWPATHS_(OrvelCommand):
    """Flow paths of the fluid domain: the groups of faces where the flow enters and leaves."""

    @property
    def IN_(self) -> tuple[str, ...]:
        """Face groups of the model where the flow enters."""
    @property
    def OUT_(self) -> tuple[str, ...]:
        """Face groups of the model where the flow leaves."""

class OUTPUT_(OrvelCommand):
    """What the job writes out: file, format, iterations and the kind of data and result."""

    class Enum_FORMAT_(IntEnum):
        """Format of the file."""

        CSV = 67
        ONF = 79
        VTFX_PLOT = 80
        VTK = 86
        WRL = 87

    class Enum_TYPE_(IntEnum):
        """Kind of data that is written."""

        CONSTRAINT_DATA = 67
        SENSITIVITY_DATA = 71
        SHAPE_DATA = 72
        LEVELSET_DATA = 76
        MODEL = 77
        OPT_FUNC_DATA = 79
        CELL_SET = 83
        TOPO_DATA = 84

    class Enum_RESULT_(IntEnum):
        """Result that is written: tracks, material or velocity."""

        PTRACK = 80
        MATERIAL = 83
        VELOCITY = 86

    class Enum_SPREAD_ALGO_(IntEnum):
        """Algorithm of the spread, named by the tracks that it takes."""

        ALL_PTRACKS = 65
        FASTEST_PTRACK = 70
        POST_PRIMARY = 79
        PRE_PRIMARY = 82
        PTRACK_SET = 83

    class Enum_INVERT_(IntEnum):
        """Switch for inverting what is written."""

        NO = 70
        YES = 84

    class Enum_DESIGN_ONLY_(IntEnum):
        """Switch for writing the design space alone."""

        NO = 70
        YES = 84

    class Enum_KEEP_POST_DATA_(IntEnum):
        """Switch for keeping the data of the post-processing."""

        NO = 70
        YES = 84

    @property
    def FILENAME_(self) -> str:
        """Name of the file that is written."""
    @property
    def FORMAT_(self) -> Enum_FORMAT_:
        """Format of the file."""
    @property
    def ITERATION_(self) -> tuple[int, ...]:
        """Iterations at which to write, read in one piece."""
    @property
    def TYPE_(self) -> Enum_TYPE_:
        """Kind of data that is written."""
    @property
    def RESULT_(self) -> Enum_RESULT_:
        """Result that is written: tracks, material or velocity."""
    @property
    def SPREAD_ALGO_(self) -> Enum_SPREAD_ALGO_:
        """Algorithm of the spread, named by the tracks that it takes."""
    @property
    def CUTOFF_(self) -> tuple[float, ...] | None:
        """Values of the cut-off, read in one piece and handed on unread."""
    @property
    def BACKFLOW_ANGLE_(self) -> int:
        """Angle for judging backflow, a whole number that is handed on without conversion."""
    @property
    def SPREAD_PERCENTAGE_(self) -> float:
        """Percentage of the spread; no range is checked."""
    @property
    def INVERT_(self) -> Enum_INVERT_:
        """Switch for inverting what is written."""
    @property
    def DESIGN_ONLY_(self) -> Enum_DESIGN_ONLY_:
        """Switch for writing the design space alone."""
    @property
    def KEEP_POST_DATA_(self) -> Enum_KEEP_POST_DATA_:
        """Switch for keeping the data of the post-processing."""
    @property
    def ELEMENT_GROUP_(self) -> str:
        """Elements that are written; the name is checked against the model even if it is empty."""

class SCALING_CURVE_(OrvelCommand):
    """Scaling curve, to which a restriction on the design variables can refer."""

    class Enum_TYPE_(IntEnum):
        """Form of the curve."""

        HEAVYSIDE = 72
        LINEAR = 73
        LOG = 76
        SIN = 83
        CONVEX = 88

    @property
    def TYPE_(self) -> Enum_TYPE_:
        """Form of the curve."""
    @property
    def UPDATE_ID_(self) -> str:
        """Name under which the curve is updated, as plain text."""
    @property
    def MIN_(self) -> float:
        """Lower limit of the curve."""
    @property
    def MAX_(self) -> float:
        """Upper limit of the curve."""
    @property
    def PENALISATION_(self) -> float:
        """Penalisation of the curve; no range is checked."""
    @property
    def DATA_SHIFT_(self) -> float:
        """Shift of the data of the curve."""

class SMOOTH_(OrvelCommand):
    """Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it."""

    class Enum_TASK_(IntEnum):
        """What the job makes: an iso surface, a surface or a volume."""

        ISO = 73
        SURFACE = 83
        VOLUME = 86

    class Enum_ALL_ITERATIONS_(IntEnum):
        """Switch for working on all iterations of the result."""

        NO = 70
        YES = 84

    class Enum_VTM_RESULT_(IntEnum):
        """Switch for a result in the VTM form, handed on unread."""

        NO = 70
        YES = 84

    class Enum_FORMAT_(IntEnum):
        """Formats in which the output is written."""

        ASCII_VTF = 65
        BDF = 66
        CDB = 67
        IGES1 = 73
        IGES2 = 74
        IGES3 = 75
        ONF = 79
        INP = 81
        STL = 83
        OUT = 84
        UNCOMPRESSED_VTF = 85
        VTF = 86
        WRL = 87
        OBJ = 88
        BINARY_VTF = 90

    class Enum_STL_GROUPS_(IntEnum):
        """Switch for groups in the STL file."""

        NO = 70
        YES = 84

    class Enum_OUTPUT_SURFACE_(IntEnum):
        """Which surface is written: the new one, the original one or both."""

        BOTH = 66
        NEW = 78
        ORIGINAL = 79

    class Enum_VTF_ORGMODEL_(IntEnum):
        """Switch for the original model in the VTF file."""

        NO = 70
        YES = 84

    class Enum_IGES_UNIT_(IntEnum):
        """Unit of length in the IGES file."""

        UM = 65
        MM = 66
        CM = 67
        M = 68
        KM = 69
        UIM = 70
        MI = 71
        I = 72
        FT = 73
        MIL = 74

    class Enum_SLICES_(IntEnum):
        """Switch for slicing."""

        NO = 70
        YES = 84

    class Enum_SLICE_PRIMARY_(IntEnum):
        """Switch for primary slices, handed on unread."""

        NO = 70
        YES = 84

    class Enum_SLICE_INTERSECTION_(IntEnum):
        """Switch for intersections of the slices."""

        NO = 70
        YES = 84

    class Enum_SLICE_REDUCTION_(IntEnum):
        """Switch for reducing the points of the slice curves."""

        NO = 70
        YES = 84

    class Enum_SLICE_OFFSET_(IntEnum):
        """Switch for the offset of the slices."""

        NO = 70
        YES = 84

    class Enum_SLICE_FILTER_CURVES_(IntEnum):
        """Switch for filtering the slice curves."""

        NO = 70
        YES = 84

    class Enum_SLICE_FORMAT_(IntEnum):
        """Format in which the slices are written."""

        ASCII_POINTS = 65
        IGES_CURVES = 67
        CLI = 76
        IGES_POLYGON = 80
        ALL = 88

    class Enum_BORDER_(IntEnum):
        """Switch for extracting the border."""

        NO = 70
        YES = 84

    class Enum_BORDER_FORMAT_(IntEnum):
        """Format in which the border is written."""

        ASCII_POINTS = 65
        IGES_CURVES = 67
        CLI = 76
        IGES_POLYGON = 80
        ALL = 88

    class Enum_NO_SORT_(IntEnum):
        """Switch that turns sorting off."""

        NO = 70
        YES = 84

    class Enum_REDUCTION_(IntEnum):
        """Switch for reducing the number of surface faces."""

        NO = 70
        YES = 84

    class Enum_SELF_INTERSECTION_(IntEnum):
        """How self-intersections of the surface are dealt with."""

        CHECK = 67
        ITERATIVE = 73
        OFF = 79
        RUNTIME = 82

    class Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_(IntEnum):
        """Whether the tolerance of the original surface is absolute or relative."""

        ABS = 65
        REL = 82

    class Enum_MIXED_MESH_(IntEnum):
        """Switch for a mesh of mixed elements."""

        NO = 70
        YES = 84

    class Enum_EXCLUDE_LOADED_(IntEnum):
        """Switch for excluding what carries a load."""

        NO = 70
        YES = 84

    class Enum_ISO_SEQUENCE_(IntEnum):
        """Whether the sequence of iso values is constant or incremental."""

        CONST = 67
        INCR = 70

    class Enum_O_SURF_SMOOTHING_(IntEnum):
        """How far the original surface is smoothed."""

        FULL = 70
        OFF = 79
        SHRINK = 83

    class Enum_RESULT_FILTERING_(IntEnum):
        """How far the result is filtered."""

        FULL = 70
        MODERATE = 77
        OFF = 79

    class Enum_IF_SMOOTHING_(IntEnum):
        """Switch for the IF smoothing, handed on unread."""

        NO = 70
        YES = 84

    class Enum_IF_SMOOTH_FROZEN_(IntEnum):
        """Switch for the IF smoothing of frozen regions, handed on unread."""

        NO = 70
        YES = 84

    class Enum_SHRINKAGE_CORRECTION_(IntEnum):
        """Switch for correcting the shrinkage that smoothing causes."""

        NO = 70
        YES = 84

    @property
    def PATCH_ID_(self) -> str:
        """Patch id, as plain text that is handed on unread and not checked against the model."""
    @property
    def TASK_(self) -> Enum_TASK_:
        """What the job makes: an iso surface, a surface or a volume."""
    @property
    def ALL_ITERATIONS_(self) -> Enum_ALL_ITERATIONS_:
        """Switch for working on all iterations of the result."""
    @property
    def ISO_VALUE_(self) -> float:
        """Iso value at which the surface is cut from the result; no range is checked."""
    @property
    def TARGET_VOLUME_(self) -> float:
        """Volume to reach, in place of an iso value; no range is checked."""
    @property
    def MODEL_FILE_(self) -> str | None:
        """File that holds the model."""
    @property
    def RESULT_FILE_(self) -> str:
        """File that holds the result of the optimization."""
    @property
    def ITERATION_(self) -> tuple[int, ...] | None:
        """Iterations to work from, read in one piece."""
    @property
    def VTM_RESULT_(self) -> Enum_VTM_RESULT_:
        """Switch for a result in the VTM form, handed on unread."""
    @property
    def OUTPUT_FILE_(self) -> str | None:
        """Name of the file that is written."""
    @property
    def FORMAT_(self) -> tuple[Enum_FORMAT_, ...]:
        """Formats in which the output is written."""
    @property
    def STL_GROUPS_(self) -> Enum_STL_GROUPS_:
        """Switch for groups in the STL file."""
    @property
    def OUTPUT_SURFACE_(self) -> Enum_OUTPUT_SURFACE_:
        """Which surface is written: the new one, the original one or both."""
    @property
    def VTF_ORGMODEL_(self) -> Enum_VTF_ORGMODEL_:
        """Switch for the original model in the VTF file."""
    @property
    def IGES_UNIT_(self) -> Enum_IGES_UNIT_:
        """Unit of length in the IGES file."""
    @property
    def SLICES_(self) -> Enum_SLICES_:
        """Switch for slicing."""
    @property
    def SLICE_X_(self) -> tuple[float, ...]:
        """Positions of the slices along X."""
    @property
    def SLICE_Y_(self) -> tuple[float, ...]:
        """Positions of the slices along Y."""
    @property
    def SLICE_Z_(self) -> tuple[float, ...]:
        """Positions of the slices along Z."""
    @property
    def SLICE_PRIMARY_(self) -> Enum_SLICE_PRIMARY_:
        """Switch for primary slices, handed on unread."""
    @property
    def SLICE_NUMBER_(self) -> int:
        """Number of slices."""
    @property
    def SLICE_DISTANCE_(self) -> float:
        """Distance between slices; no range is checked."""
    @property
    def SLICE_INTERSECTION_(self) -> Enum_SLICE_INTERSECTION_:
        """Switch for intersections of the slices."""
    @property
    def SLICE_REDUCTION_(self) -> Enum_SLICE_REDUCTION_:
        """Switch for reducing the points of the slice curves."""
    @property
    def SLICE_RED_ANGLE_(self) -> float:
        """Angle for reducing the slice curves, handed on without conversion."""
    @property
    def SLICE_OFFSET_(self) -> Enum_SLICE_OFFSET_:
        """Switch for the offset of the slices."""
    @property
    def SLICE_REF_QUANT_(self) -> int:
        """Quantity of the slice refinement, a whole number that is handed on unread."""
    @property
    def SLICE_REF_FACTOR_(self) -> float:
        """Factor of the slice refinement, handed on unread."""
    @property
    def SLICE_FILTER_CURVES_(self) -> Enum_SLICE_FILTER_CURVES_:
        """Switch for filtering the slice curves."""
    @property
    def SLICE_FORMAT_(self) -> Enum_SLICE_FORMAT_:
        """Format in which the slices are written."""
    @property
    def BORDER_(self) -> Enum_BORDER_:
        """Switch for extracting the border."""
    @property
    def BORDER_FORMAT_(self) -> Enum_BORDER_FORMAT_:
        """Format in which the border is written."""
    @property
    def GROUP_FILE_(self) -> str:
        """File that holds groups."""
    @property
    def EXCLUDE_GROUP_(self) -> tuple[str, ...]:
        """Groups to exclude, as plain names that are not checked against the model."""
    @property
    def INCLUDE_GROUP_(self) -> tuple[str, ...]:
        """Groups to include, as plain names that are not checked against the model."""
    @property
    def SURFACE_GROUP_(self) -> tuple[str, ...]:
        """Groups of the surface, as plain names that are not checked against the model."""
    @property
    def ND_GROUP_(self) -> str | None:
        """Name of the ND group, as plain text that is not checked against the model."""
    @property
    def ISO_GROUP_NAME_(self) -> tuple[str, ...]:
        """Groups with an iso value of their own, as plain names that are not checked against the model."""
    @property
    def ISO_GROUP_VALUE_(self) -> tuple[float, ...]:
        """Iso values of these groups, in the same order; the two counts are not compared."""
    @property
    def VOL_GROUP_NAME_(self) -> tuple[str, ...]:
        """Groups with a volume of their own, as plain names that are not checked against the model."""
    @property
    def VOL_GROUP_VALUE_(self) -> tuple[float, ...]:
        """Volumes of these groups, in the same order; the two counts are not compared."""
    @property
    def SMOOTH_CYCLES_(self) -> int:
        """Number of smoothing cycles."""
    @property
    def NO_SORT_(self) -> Enum_NO_SORT_:
        """Switch that turns sorting off."""
    @property
    def MIN_DENS_WALL_(self) -> float:
        """Lower limit of the density at a wall."""
    @property
    def REDUCTION_(self) -> Enum_REDUCTION_:
        """Switch for reducing the number of surface faces."""
    @property
    def REDUCTION_RATE_(self) -> float:
        """Rate of the reduction; no range is checked."""
    @property
    def REDUCTION_ANGLE_(self) -> float:
        """Angle for the reduction, handed on without conversion."""
    @property
    def MIN_ANGLE_(self) -> float:
        """Smallest angle, handed on without conversion."""
    @property
    def MIN_FACE_ANGLE_(self) -> float:
        """Smallest face angle, handed on without conversion."""
    @property
    def SELF_INTERSECTION_(self) -> Enum_SELF_INTERSECTION_:
        """How self-intersections of the surface are dealt with."""
    @property
    def ORIGINAL_SURFACE_TOLERANCE_VALUE_(self) -> float | None:
        """Tolerance of the original surface; independent of whether its type is given."""
    @property
    def ORIGINAL_SURFACE_TOLERANCE_TYPE_(self) -> Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_ | None:
        """Whether the tolerance of the original surface is absolute or relative."""
    @property
    def MIXED_MESH_(self) -> Enum_MIXED_MESH_:
        """Switch for a mesh of mixed elements."""
    @property
    def EXCLUDE_LOADED_(self) -> Enum_EXCLUDE_LOADED_:
        """Switch for excluding what carries a load."""
    @property
    def ISO_SEQUENCE_(self) -> Enum_ISO_SEQUENCE_:
        """Whether the sequence of iso values is constant or incremental."""
    @property
    def O_SURF_SMOOTHING_(self) -> Enum_O_SURF_SMOOTHING_:
        """How far the original surface is smoothed."""
    @property
    def RESULT_FILTERING_(self) -> Enum_RESULT_FILTERING_:
        """How far the result is filtered."""
    @property
    def INPUT_SCALE_(self) -> float:
        """Scale of the input; no range is checked."""
    @property
    def COMPONENT_LIM_SIZE_(self) -> float:
        """Limit size of a component; no range is checked."""
    @property
    def IF_SMOOTHING_(self) -> Enum_IF_SMOOTHING_:
        """Switch for the IF smoothing, handed on unread."""
    @property
    def IF_SMOOTH_FROZEN_(self) -> Enum_IF_SMOOTH_FROZEN_:
        """Switch for the IF smoothing of frozen regions, handed on unread."""
    @property
    def IF_TOLERANCE_(self) -> float:
        """Tolerance of the IF smoothing; no range is checked."""
    @property
    def IF_BORDER_CYCLES_(self) -> int:
        """Number of cycles at the border in the IF smoothing."""
    @property
    def IF_INNER_CYCLES_(self) -> int:
        """Number of inner cycles in the IF smoothing."""
    @property
    def SHRINKAGE_CORRECTION_(self) -> Enum_SHRINKAGE_CORRECTION_:
        """Switch for correcting the shrinkage that smoothing causes."""
    @property
    def LAPLACE_ALPHA_(self) -> float:
        """Parameter alpha of the Laplace smoothing."""
    @property
    def LAPLACE_BETA_(self) -> float:
        """Parameter beta of the Laplace smoothing."""
    @property
    def WALL_TOLERANCE_(self) -> float:
        """Tolerance at a wall; no range is checked."""
