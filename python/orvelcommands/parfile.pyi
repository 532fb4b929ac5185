# Generated from gyre_commands.toml and smooth_commands.toml
# by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
from collections.abc import Iterable, Iterator, Mapping

from orvelcommands import commands as _commands
from orvelcommands.failures import KLV_ParfileException
from orvelcommands.storage import ParfileHdf5Storage

class Gyre_Parfile:
    """The parameter file of a fluid optimization job."""

    def __init__(self, storage: ParfileHdf5Storage) -> None: ...
    def __iter__(self) -> Iterator[_commands.OrvelCommand]: ...
    def __len__(self) -> int: ...
    def ValidateModelIds(self, model_ids: Mapping[str, Iterable[str]]) -> None: ...
    def FindModelIdProblems(self, model_ids: Mapping[str, Iterable[str]]) -> list[KLV_ParfileException]: ...
    @property
    def MODEL_(self) -> _commands.MODEL_:
        """Model that the job works on: the file that holds it and the solver that it belongs to."""
    @property
    def ELEMENT_GROUP_(self) -> tuple[_commands.ELEMENT_GROUP_, ...]:
        """Recipe for a group of elements: listed numbers and operations with other element groups."""
    @property
    def FACE_GROUP_(self) -> tuple[_commands.FACE_GROUP_, ...]:
        """Recipe for a group of faces: listed numbers and operations with other face groups."""
    @property
    def NODE_GROUP_(self) -> tuple[_commands.NODE_GROUP_, ...]:
        """Recipe for a group of nodes: listed numbers and operations with other node groups."""
    @property
    def DV_(self) -> tuple[_commands.DV_, ...]:
        """Design variable: the group whose values the optimization changes, its start value and its filters."""
    @property
    def DRESP_(self) -> tuple[_commands.DRESP_, ...]:
        """Design response: a quantity of the analysis to minimise, to constrain or merely to watch."""
    @property
    def OPERATOR_(self) -> tuple[_commands.OPERATOR_, ...]:
        """Operator: combines design responses and other operators, each with its weight, into one value."""
    @property
    def OBJ_FUNC_(self) -> _commands.OBJ_FUNC_:
        """Objective of the optimization: the response or operator to minimise, its scaling and its filters."""
    @property
    def CONSTRAINT_(self) -> tuple[_commands.CONSTRAINT_, ...]:
        """Constraint of the optimization: a bound on a response or an operator."""
    @property
    def CS_(self) -> tuple[_commands.CS_, ...]:
        """Coordinate system defined in the parameter file: a type, an origin and three axis vectors."""
    @property
    def DV_CONSTRAINT_(self) -> tuple[_commands.DV_CONSTRAINT_, ...]:
        """Restriction on the design variables, such as a symmetry, a demolding direction or a member size."""
    @property
    def MONITOR_(self) -> tuple[_commands.MONITOR_, ...]:
        """Monitor: one design response that is watched during the run."""
    @property
    def ALGO_(self) -> _commands.ALGO_:
        """Optimization task: the strategy of the run and all commands that take part in it."""
    @property
    def OPT_PARAM_(self) -> tuple[_commands.OPT_PARAM_, ...]:
        """General parameters of the optimization."""
    @property
    def STOP_(self) -> tuple[_commands.STOP_, ...]:
        """Criteria that end the optimization: limits of iterations and residuals."""
    @property
    def MESH_SMOOTH_(self) -> tuple[_commands.MESH_SMOOTH_, ...]:
        """Smoothing of the mesh during the run, on a group of faces, nodes or elements."""
    @property
    def FILTER_(self) -> tuple[_commands.FILTER_, ...]:
        """Filter that design variables or sensitivities pass through, on a group of the model."""
    @property
    def PRE_PARAM_(self) -> tuple[_commands.PRE_PARAM_, ...]:
        """Parameters of the pre-processing: fluid, limits of its run, backflow angle and switches for tracks."""
    @property
    def AS_TOPO_OC_(self) -> tuple[_commands.AS_TOPO_OC_, ...]:
        """Settings for topology optimization by optimality criteria."""
    @property
    def AS_TOPO_SENS_(self) -> tuple[_commands.AS_TOPO_SENS_, ...]:
        """Settings for topology optimization by sensitivities: optimizer, move limits, primal and adjoint runs."""
    @property
    def AS_SHAPE_SENS_(self) -> tuple[_commands.AS_SHAPE_SENS_, ...]:
        """Settings for shape optimization by sensitivities: optimizer, move limits, filters and normals."""
    @property
    def FLOWPATHS_(self) -> _commands.FLOWPATHS_:
        """Flow paths of the fluid domain: the groups of faces where the flow enters and leaves."""
    @property
    def OUTPUT_(self) -> tuple[_commands.OUTPUT_, ...]:
        """What the job writes out: file, format, iterations and the kind of data and result."""
    @property
    def SCALING_CURVE_(self) -> tuple[_commands.SCALING_CURVE_, ...]:
        """Scaling curve, to which a restriction on the design variables can refer."""
    @property
    def SMOOTH_(self) -> tuple[_commands.SMOOTH_, ...]:
        """Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it."""

class Smooth_Parfile:
    """The parameter file of a smoothing job."""

    def __init__(self, storage: ParfileHdf5Storage) -> None: ...
    def __iter__(self) -> Iterator[_commands.OrvelCommand]: ...
    def __len__(self) -> int: ...
    def ValidateModelIds(self, model_ids: Mapping[str, Iterable[str]]) -> None: ...
    def FindModelIdProblems(self, model_ids: Mapping[str, Iterable[str]]) -> list[KLV_ParfileException]: ...
    @property
    def SMOOTH_(self) -> tuple[_commands.SMOOTH_, ...]:
        """Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it."""
