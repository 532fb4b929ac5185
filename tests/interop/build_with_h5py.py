#!/usr/bin/python3
"""Builds complete parameter files with h5py, from nothing but the layout of the file.

    build_with_h5py.py fluid|smooth [--newest-format] [FILE]

FILE is parfile_storage.hdf5 by default. With --newest-format HDF5 chooses the newest format that it knows, and the
groups remember the order in which their members were made.

In the file stand a group /PARFILE, in it a group for each kind of command, in it a group for each command, in it a
dataset for each key: one dimension without limit, one value an element, one element a chunk, no attributes.
"""

import argparse
import ctypes

import h5py
import numpy
from h5py import h5d, h5p, h5s, h5t

TEXT = h5t.vlen_create(h5t.C_S1)
INTEGERS = h5t.vlen_create(h5t.NATIVE_INT32)
DOUBLES = h5t.vlen_create(h5t.NATIVE_DOUBLE)
SEQUENCE_IN_MEMORY = numpy.dtype([("length", "u8"), ("data", "u8")])


class Integers(list):
    """A whole list of integers as one value."""


class Doubles(list):
    """A whole list of doubles as one value."""


class Ref:
    """A reference to a command."""

    def __init__(self, kind, name):
        self.path = f"/PARFILE/{kind}/{name}"


def refs(kind, *names):
    return [Ref(kind, name) for name in names]


def make_key(group, key, values):
    """Makes the dataset of a key. A list holds one value for each element, anything else is the only value."""
    if type(values) is not list:
        values = [values]
    file_type, write = {
        int: (h5t.NATIVE_INT32, write_numbers("i4")),
        float: (h5t.NATIVE_DOUBLE, write_numbers("f8")),
        str: (TEXT, write_texts),
        Integers: (INTEGERS, write_sequences("i4")),
        Doubles: (DOUBLES, write_sequences("f8")),
        Ref: (h5t.STD_REF_OBJ, write_references),
    }[type(values[0])]
    layout = h5p.create(h5p.DATASET_CREATE)
    layout.set_chunk((1,))
    space = h5s.create_simple((len(values),), (h5s.UNLIMITED,))
    write(h5d.create(group.id, key.encode(), file_type, space, layout), values)


def write_numbers(item):
    def write(dataset, values):
        dataset.write(h5s.ALL, h5s.ALL, numpy.array(values, dtype=item))

    return write


def write_texts(dataset, values):
    # h5py would go by way of padded characters, which HDF5 turns into empty ones; so the bytes are handed over as
    # they are.
    texts = [ctypes.create_string_buffer(value.encode()) for value in values]
    sequences = [(len(text), ctypes.addressof(text)) for text in texts]
    dataset.write(h5s.ALL, h5s.ALL, numpy.array(sequences, dtype=SEQUENCE_IN_MEMORY), mtype=TEXT)


def write_sequences(item):
    def write(dataset, values):
        sequences = numpy.empty(len(values), dtype=h5py.vlen_dtype(numpy.dtype(item)))
        for i, value in enumerate(values):
            sequences[i] = numpy.array(value, dtype=item)
        dataset.write(h5s.ALL, h5s.ALL, sequences)

    return write


def write_references(dataset, values):
    file = h5py.File(h5py.h5i.get_file_id(dataset))
    references = numpy.empty(len(values), dtype=h5py.ref_dtype)
    for i, value in enumerate(values):
        references[i] = file[value.path].ref
    dataset.write(h5s.ALL, h5s.ALL, references)


def build(path, job, newest_format):
    h5py.get_config().track_order = newest_format
    with h5py.File(path, "w", libver="latest" if newest_format else None) as file:
        parfile = file.create_group("PARFILE")
        commands = [(kind, name, keys) for kind, named in job.items() for name, keys in named.items()]
        for kind, name, _ in commands:
            parfile.require_group(kind).create_group(name)
        for kind, name, keys in commands:
            for key, values in keys.items():
                make_key(parfile[kind][name], key, values)


def code(letter):
    """The number of an enumerator."""
    return ord(letter)


# Commands and keys stand in no particular order: a file sorts them by name.
SMOOTH = {
    "surface": {
        "PATCH_ID_": "surface patch",
        "TASK_": code("I"),
        "ALL_ITERATIONS_": code("F"),
        "ISO_VALUE_": 0.3,
        "TARGET_VOLUME_": 0.45,
        "MODEL_FILE_": "duct.inp",
        "RESULT_FILE_": "duct_result.onf",
        "ITERATION_": Integers([5, 25]),
        "VTM_RESULT_": code("T"),
        "OUTPUT_FILE_": "duct_surface",
        "FORMAT_": [code("S"), code("Q"), code("Z")],
        "STL_GROUPS_": code("F"),
        "OUTPUT_SURFACE_": code("B"),
        "VTF_ORGMODEL_": code("T"),
        "IGES_UNIT_": code("B"),
        "SLICES_": code("T"),
        "SLICE_X_": [0.1, 0.2],
        "SLICE_Y_": [1.25],
        "SLICE_Z_": [2.5, 3.5, 4.5],
        "SLICE_PRIMARY_": code("F"),
        "SLICE_NUMBER_": 12,
        "SLICE_DISTANCE_": 0.75,
        "SLICE_INTERSECTION_": code("T"),
        "SLICE_REDUCTION_": code("F"),
        "SLICE_RED_ANGLE_": 7.5,
        "SLICE_OFFSET_": code("T"),
        "SLICE_REF_QUANT_": 3,
        "SLICE_REF_FACTOR_": 1.125,
        "SLICE_FILTER_CURVES_": code("F"),
        "SLICE_FORMAT_": code("L"),
        "BORDER_": code("T"),
        "BORDER_FORMAT_": code("X"),
        "GROUP_FILE_": "groups.txt",
        "EXCLUDE_GROUP_": ["frozen", "bolts"],
        "INCLUDE_GROUP_": ["design"],
        "SURFACE_GROUP_": ["skin", "inlet skin"],
        "ND_GROUP_": "non design",
        "ISO_GROUP_NAME_": ["soft", "hard"],
        "ISO_GROUP_VALUE_": [0.2, 0.8],
        "VOL_GROUP_NAME_": ["left"],
        "VOL_GROUP_VALUE_": [0.6, 0.7],
        "SMOOTH_CYCLES_": 10,
        "NO_SORT_": code("F"),
        "MIN_DENS_WALL_": 0.02,
        "REDUCTION_": code("T"),
        "REDUCTION_RATE_": 0.5,
        "REDUCTION_ANGLE_": 20.5,
        "MIN_ANGLE_": 10.25,
        "MIN_FACE_ANGLE_": 15.75,
        "SELF_INTERSECTION_": code("R"),
        "ORIGINAL_SURFACE_TOLERANCE_VALUE_": 0.003,
        "ORIGINAL_SURFACE_TOLERANCE_TYPE_": code("A"),
        "MIXED_MESH_": code("F"),
        "EXCLUDE_LOADED_": code("T"),
        "ISO_SEQUENCE_": code("F"),
        "O_SURF_SMOOTHING_": code("S"),
        "RESULT_FILTERING_": code("M"),
        "INPUT_SCALE_": 1000.0,
        "COMPONENT_LIM_SIZE_": 0.001,
        "IF_SMOOTHING_": code("T"),
        "IF_SMOOTH_FROZEN_": code("F"),
        "IF_TOLERANCE_": 0.004,
        "IF_BORDER_CYCLES_": 2,
        "IF_INNER_CYCLES_": 4,
        "SHRINKAGE_CORRECTION_": code("T"),
        "LAPLACE_ALPHA_": 0.63,
        "LAPLACE_BETA_": -0.64,
        "WALL_TOLERANCE_": 0.005,
    },
}

FLUID = {
    "SMOOTH_": SMOOTH,
    "MODEL_": {"bend": {"FILE_": "bent_duct.inp", "SOLVER_": "flow solver"}},
    "ELEMENT_GROUP_": {
        "fluid": {
            "LIST_": Integers([101, 102, 103]),
            "MERGE_": ["cells_inlet", "cells_bend"],
            "INTERSECT_": ["cells_box"],
            "XOR_": ["cells_odd", "cells_even"],
            "SUBTRACT_": ["cells_frozen", "cells_wall", "cells_outlet"],
        },
        "design": {},
    },
    "FACE_GROUP_": {
        "outlet": {"LIST_": Integers([])},
        "inlet": {
            "LIST_": Integers([11]),
            "MERGE_": ["faces_a"],
            "INTERSECT_": ["faces_b", "faces_c"],
            "XOR_": ["faces_d"],
            "SUBTRACT_": ["faces_e", "faces_f"],
        },
    },
    "NODE_GROUP_": {
        "wall": {
            "LIST_": Integers([-1, 0, 2147483647, -2147483648]),
            "MERGE_": ["nodes_a", "nodes_b"],
            "INTERSECT_": ["nodes_c"],
            "XOR_": ["nodes_d"],
            "SUBTRACT_": ["nodes_e"],
        },
    },
    "DV_": {
        "porosity": {
            "ELEMENT_GROUP_": "design",
            "NODE_GROUP_": "wall",
            "INITIAL_": 0.4,
            "INITIAL_DV_FIELD_": "start.csv",
            "FILTER_": refs("FILTER_", "fine", "coarse"),
            "TYPE_": code("D"),
            "DV_": refs("DV_", "porosity", "level"),
        },
        "level": {"INITIAL_": 1.0, "TYPE_": code("V")},
    },
    "DRESP_": {
        "volume": {
            "TYPE_": 146,
            "UPDATE_TYPE_": code("R"),
            "UPDATE_ID_": "",
            "UPDATE_INDEX_": 0,
            "WRITE_INTERVAL_": 1,
            "LOADCASE_": 1,
            "ITER_MAX_": 100,
            "ITER_MIN_": 200,
            "RESIDUAL_": 0.0,
            "ADJOINT_RESIDUAL_": 0.0,
            "ADJOINT_DEVIATION_": 0.0,
            "OBJECTIVE_DEVIATION_": 0.0,
        },
        "pressure drop": {
            "TYPE_": 1001,
            "UPDATE_TYPE_": code("C"),
            "UPDATE_ID_": "dp",
            "UPDATE_INDEX_": 3,
            "FACE_GROUP_": "inlet",
            "FACE_GROUP_ADD_": "outlet",
            "ELEMENT_GROUP_": "fluid",
            "NODE_GROUP_": "wall",
            "WRITE_INTERVAL_": 10,
            "LOADCASE_": 2,
            "ITER_MAX_": 500,
            "ITER_MIN_": 50,
            "RESIDUAL_": 1e-06,
            "ADJOINT_RESIDUAL_": 2e-06,
            "ADJOINT_DEVIATION_": 0.015,
            "OBJECTIVE_DEVIATION_": 0.025,
            "DV_CONSTRAINT_": Ref("DV_CONSTRAINT_", "demold"),
            "FILE_": "pressure.csv",
            "CS_REF_": "model cs",
        },
    },
    "OPERATOR_": {
        "peak": {
            "TYPE_": code("X"),
            "UPDATE_TYPE_": code("C"),
            "UPDATE_ID_": "p",
            "UPDATE_INDEX_": 0,
            "FACTOR_": 1.0,
        },
        "flow": {
            "TYPE_": code("m"),
            "UPDATE_TYPE_": code("R"),
            "UPDATE_ID_": "f",
            "UPDATE_INDEX_": 1,
            "DRESP_": refs("DRESP_", "volume", "pressure drop"),
            "DRESP_WEIGHT_": [0.25, 0.75],
            "OPERATOR_": refs("OPERATOR_", "flow", "peak"),
            "OPERATOR_WEIGHT_": [1.5],
            "FACTOR_": 2.5,
        },
    },
    "OBJ_FUNC_": {
        "least losses": {
            "DRESP_": Ref("DRESP_", "pressure drop"),
            "OPERATOR_": Ref("OPERATOR_", "flow"),
            "TARGET_": code("M"),
            "SENSSCALING_TYPE_": code("S"),
            "SENSSCALING_VALUE_": 0.125,
            "FILTER_": refs("FILTER_", "fine"),
        },
    },
    "CONSTRAINT_": {
        "volume limit": {
            "DRESP_": Ref("DRESP_", "volume"),
            "OPERATOR_": Ref("OPERATOR_", "peak"),
            "TYPE_": code("L"),
            "MAGNITUDE_": code("R"),
            "VALUE_": 0.35,
            "COEFFICIENT_": 1.25,
            "A_MINMAX_COEFFICIENT_": 0.05,
            "SENSSCALING_TYPE_": code("O"),
            "SENSSCALING_VALUE_": 3.5,
            "FILTER_": refs("FILTER_", "coarse", "fine"),
        },
        "open": {
            "TYPE_": code("G"),
            "MAGNITUDE_": code("V"),
            "VALUE_": -1.0,
            "COEFFICIENT_": 0.0,
            "A_MINMAX_COEFFICIENT_": 0.0,
            "SENSSCALING_TYPE_": code("N"),
            "SENSSCALING_VALUE_": 0.0,
        },
    },
    "CS_": {
        "axis": {
            "TYPE_": code("R"),
            "X_ORIGIN_": 0.1,
            "Y_ORIGIN_": 0.2,
            "Z_ORIGIN_": 0.3,
            "X_VEC1_": 1.1,
            "Y_VEC1_": 1.2,
            "Z_VEC1_": 1.3,
            "X_VEC2_": 2.1,
            "Y_VEC2_": 2.2,
            "Z_VEC2_": 2.3,
            "X_VEC3_": 3.1,
            "Y_VEC3_": 3.2,
            "Z_VEC3_": 3.3,
        },
        "ball": {
            "TYPE_": code("S"),
            "Y_ORIGIN_": -4.5,
            "X_VEC1_": 0.0,
            "Y_VEC1_": 0.0,
            "Z_VEC1_": 0.0,
            "X_VEC2_": 0.0,
            "Y_VEC2_": 0.0,
            "Z_VEC2_": 0.0,
            "X_VEC3_": 0.0,
            "Y_VEC3_": 0.0,
            "Z_VEC3_": 0.0,
        },
    },
    "DV_CONSTRAINT_": {
        "loose": {
            "PATCH_ID_": "",
            "DVC_TYPE_": code("Y"),
            "FEASIBLE_START_": code("I"),
            "SAVE_": code("N"),
            "DUMPOPTVALUES_": code("Y"),
            "AGGREGATION_METHOD_": code("A"),
            "AGGREGATION_PARAMETER_": 0.0,
            "AGGREGATION_NUM_CONSTRAINTS_": -1,
            "CHECK_ELGR_BLOCKING_": code("P"),
            "TOLERANCE_": 0.0,
            "MID_PLANE_": code("P"),
        },
        "demold": {
            "PATCH_ID_": "demold patch",
            "DVC_TYPE_": code("E"),
            "NODE_GROUP_": "wall",
            "CHECK_GROUP_": "check",
            "REFERENCE_GROUP_": "reference",
            "ELEMENT_GROUP_": "design",
            "X_POINT_": 1.5,
            "Y_POINT_": 2.5,
            "Z_POINT_": 3.5,
            "X_DIRECTION_": 0.0,
            "Y_DIRECTION_": 1.0,
            "Z_DIRECTION_": -1.0,
            "X_START_DIRECTION_": 0.25,
            "Y_START_DIRECTION_": 0.5,
            "Z_START_DIRECTION_": 0.75,
            "ANGLE_": 15.5,
            "FEASIBLE_START_": code("F"),
            "SAVE_": code("Y"),
            "DUMPOPTVALUES_": code("N"),
            "RADIUS_": 4.25,
            "FILTER_TYPE_": code("S"),
            "MEMBERSIZE_TYPE_": code("I"),
            "AGGREGATION_METHOD_": code("a"),
            "AGGREGATION_PARAMETER_": 8.5,
            "AGGREGATION_NUM_CONSTRAINTS_": 16,
            "CS_": Ref("CS_", "axis"),
            "X_DOF_": code("E"),
            "Y_DOF_": code("X"),
            "Z_DOF_": code("E"),
            "CHECK_ELGR_BLOCKING_": code("B"),
            "TOLERANCE_": 0.001,
            "SCALING_CURVE_": Ref("SCALING_CURVE_", "ramp"),
            "MID_PLANE_": code("_"),
        },
    },
    "MONITOR_": {
        "watch volume": {"DRESP_": Ref("DRESP_", "volume")},
        "watch pressure": {"DRESP_": Ref("DRESP_", "pressure drop")},
    },
    "ALGO_": {
        "optimize": {
            "STRATEGY_": code("T"),
            "DV_": Ref("DV_", "porosity"),
            "OBJ_FUNC_": Ref("OBJ_FUNC_", "least losses"),
            "CONSTRAINT_": refs("CONSTRAINT_", "volume limit", "open"),
            "DV_CONSTRAINT_": refs("DV_CONSTRAINT_", "demold"),
            "OPT_PARAM_": Ref("OPT_PARAM_", "parameters"),
            "STOP_": Ref("STOP_", "criteria"),
            "PRE_PARAM_": Ref("PRE_PARAM_", "preparation"),
            "MESH_SMOOTH_": refs("MESH_SMOOTH_", "wall", "plain"),
            "MONITOR_": refs("MONITOR_", "watch volume", "watch pressure"),
            "AS_TOPO_OC_": Ref("AS_TOPO_OC_", "oc"),
            "AS_TOPO_SENS_": Ref("AS_TOPO_SENS_", "topo"),
            "AS_SHAPE_SENS_": Ref("AS_SHAPE_SENS_", "shape"),
            "DEVELOPER_OUTPUT_": code("T"),
        },
    },
    "OPT_PARAM_": {
        "parameters": {"STORE_INT_": Integers([1, 5, 10]), "OPT_START_": 2, "SRC_SCALE_": 0.95},
        "bare": {"OPT_START_": 0},
    },
    "STOP_": {
        "criteria": {"ITER_MAX_": 200, "ITER_MIN_": 20, "RESIDUAL_OBJ_": 0.0001, "RESIDUAL_DV_": 0.0002},
    },
    "MESH_SMOOTH_": {
        "wall": {
            "METHOD_": code("L"),
            "CYCLE_": 4,
            "FACE_GROUP_": "inlet",
            "NODE_GROUP_": "wall",
            "ELEMENT_GROUP_": "fluid",
            "SMOOTH_CYCLES_": 6,
            "ALPHA_": 0.35,
            "BETA_": -0.36,
            "FILTER_": Ref("FILTER_", "coarse"),
            "DV_CONSTRAINT_": Ref("DV_CONSTRAINT_", "loose"),
        },
        "plain": {"METHOD_": code("U"), "CYCLE_": 1, "SMOOTH_CYCLES_": 0, "ALPHA_": 0.0, "BETA_": 0.0},
    },
    "FILTER_": {
        "fine": {
            "PATCH_ID_": "filter patch",
            "METHOD_": code("d"),
            "RADIUS_": 1.75,
            "X_DIRECTION_": 0.6,
            "Y_DIRECTION_": 0.0,
            "Z_DIRECTION_": 0.8,
            "X_POINT_": 10.0,
            "Y_POINT_": 20.0,
            "Z_POINT_": 30.0,
            "FACE_GROUP_": "outlet",
            "NODE_GROUP_": "wall",
            "ELEMENT_GROUP_": "design",
            "ALPHA_": 0.5,
            "BETA_": 0.625,
        },
        "coarse": {"PATCH_ID_": "c", "METHOD_": code("E"), "RADIUS_": 6.0, "ALPHA_": 0.0, "BETA_": 0.0},
    },
    "PRE_PARAM_": {
        "preparation": {
            "PATCH_ID_": "inlet patch",
            "VISCOSITY_": 1.5e-05,
            "RESIDUAL_": 1e-05,
            "ITER_MAX_": 300,
            "BACKFLOW_ANGLE_": 85,
            "PTRACK_PRI_VRML_": code("T"),
            "PTRACK_VAL_VRML_": code("F"),
            "REF_VRML_": code("T"),
            "PTRACK_KEEP_INVALID_": code("F"),
            "PTRACK_VRML_ADD_BOUNDS_": code("Y"),
        },
    },
    "AS_TOPO_OC_": {
        "oc": {
            "PATCH_ID_": "oc patch",
            "BT_": 0.45,
            "TA_MIN_": 0.01,
            "TA_MAX_": 0.99,
            "SCALING_CURVE_TYPE_": code("I"),
            "SCALING_CURVE_UPDATE_ID_": "oc curve",
            "SCALING_CURVE_MIN_": 0.1,
            "SCALING_CURVE_MAX_": 0.9,
            "SCALING_CURVE_PENALISATION_": 3.0,
        },
    },
    "AS_TOPO_SENS_": {
        "topo": {
            "PATCH_ID_": "topo patch",
            "ALGORITHM_": code("M"),
            "MATH_KERNEL_": code("I"),
            "MIN_": 0.011,
            "MAX_": 0.981,
            "MOVE_": 0.2,
            "SCALING_CURVE_TYPE_": code("L"),
            "SCALING_CURVE_UPDATE_ID_": "topo curve",
            "SCALING_CURVE_MIN_": 0.12,
            "SCALING_CURVE_MAX_": 0.88,
            "SCALING_CURVE_PENALISATION_": 3.5,
            "ASYM_MOVE_": code("C"),
            "ASYM_MOVE_LOW_": 0.7,
            "ASYM_MOVE_UP_": 1.2,
            "SUB_TOL_": 1e-07,
            "PRIMAL_ITER_MIN_": 21,
            "PRIMAL_ITER_MAX_": 22,
            "PRIMAL_INTERVAL_": 23,
            "PRIMAL_RESIDUAL_": 0.00024,
            "PRIMAL_DEVIATION_": 0.00025,
            "ADJOINT_ITER_MIN_": 26,
            "ADJOINT_ITER_MAX_": 27,
            "ADJOINT_INTERVAL_": 28,
            "ADJOINT_DISC_": "upwind",
            "ADJOINT_DRIVER_": "steady",
            "ADJOINT_CFL_": 29,
            "KEEP_INITIAL_": "YES",
            "KEEP_ADJOINT_": "NO",
            "SKIP_PRESSURE_SRC_": "maybe",
            "SKIP_TURBULENT_SRC_": "later",
        },
    },
    "AS_SHAPE_SENS_": {
        "shape": {
            "PATCH_ID_": "shape patch",
            "ALGORITHM_": code("F"),
            "MATH_KERNEL_": code("M"),
            "MIN_": -0.5,
            "MAX_": 0.75,
            "MOVE_": 0.3,
            "SCALING_CURVE_TYPE_": code("X"),
            "SCALING_CURVE_UPDATE_ID_": "shape curve",
            "SCALING_CURVE_MIN_": 0.14,
            "SCALING_CURVE_MAX_": 0.86,
            "SCALING_CURVE_PENALISATION_": 4.5,
            "ASYM_MOVE_": code("S"),
            "ASYM_MOVE_LOW_": 0.65,
            "ASYM_MOVE_UP_": 1.35,
            "SUB_TOL_": 1e-08,
            "FILTER_": refs("FILTER_", "fine", "fine"),
            "NORMAL_UPDATE_": code("C"),
            "DV_TYPE_": code("S"),
        },
    },
    "FLOWPATHS_": {"paths": {"IN_": ["inlet", "second inlet"], "OUT_": ["outlet"]}},
    "OUTPUT_": {
        "sets": {
            "FILENAME_": "sets",
            "FORMAT_": code("W"),
            "ITERATION_": Integers([]),
            "TYPE_": code("S"),
            "RESULT_": code("P"),
            "SPREAD_ALGO_": code("S"),
            "BACKFLOW_ANGLE_": 0,
            "SPREAD_PERCENTAGE_": 0.0,
            "INVERT_": code("T"),
            "DESIGN_ONLY_": code("F"),
            "KEEP_POST_DATA_": code("T"),
            "ELEMENT_GROUP_": "",
        },
        "fields": {
            "FILENAME_": "Kr\u00fcmmer 100%",
            "FORMAT_": code("V"),
            "ITERATION_": Integers([1, 10, 100]),
            "TYPE_": code("T"),
            "RESULT_": code("V"),
            "SPREAD_ALGO_": code("F"),
            "CUTOFF_": Doubles([0.1, 0.9]),
            "BACKFLOW_ANGLE_": 60,
            "SPREAD_PERCENTAGE_": 12.5,
            "INVERT_": code("F"),
            "DESIGN_ONLY_": code("T"),
            "KEEP_POST_DATA_": code("F"),
            "ELEMENT_GROUP_": "design",
        },
    },
    "SCALING_CURVE_": {
        "ramp": {
            "TYPE_": code("H"),
            "UPDATE_ID_": "ramp id",
            "MIN_": 0.05,
            "MAX_": 0.95,
            "PENALISATION_": 2.0,
            "DATA_SHIFT_": 0.01,
        },
    },
}

SMOOTH_JOB = {
    "SMOOTH_": {
        **SMOOTH,
        # What may be missing is missing, but for one half of a pair.
        "volume": {
            "PATCH_ID_": "volume patch",
            "TASK_": code("V"),
            "ALL_ITERATIONS_": code("T"),
            "ISO_VALUE_": 0.0,
            "TARGET_VOLUME_": 0.5,
            "RESULT_FILE_": "result",
            "VTM_RESULT_": code("F"),
            "STL_GROUPS_": code("T"),
            "OUTPUT_SURFACE_": code("N"),
            "VTF_ORGMODEL_": code("F"),
            "IGES_UNIT_": code("J"),
            "SLICES_": code("F"),
            "SLICE_PRIMARY_": code("T"),
            "SLICE_NUMBER_": 0,
            "SLICE_DISTANCE_": 0.0,
            "SLICE_INTERSECTION_": code("F"),
            "SLICE_REDUCTION_": code("T"),
            "SLICE_RED_ANGLE_": 0.0,
            "SLICE_OFFSET_": code("F"),
            "SLICE_REF_QUANT_": 0,
            "SLICE_REF_FACTOR_": 0.0,
            "SLICE_FILTER_CURVES_": code("T"),
            "SLICE_FORMAT_": code("P"),
            "BORDER_": code("F"),
            "BORDER_FORMAT_": code("C"),
            "GROUP_FILE_": "",
            "SMOOTH_CYCLES_": 0,
            "NO_SORT_": code("T"),
            "MIN_DENS_WALL_": 0.0,
            "REDUCTION_": code("F"),
            "REDUCTION_RATE_": 0.0,
            "REDUCTION_ANGLE_": 0.0,
            "MIN_ANGLE_": 0.0,
            "MIN_FACE_ANGLE_": 0.0,
            "SELF_INTERSECTION_": code("O"),
            "ORIGINAL_SURFACE_TOLERANCE_TYPE_": code("R"),
            "MIXED_MESH_": code("T"),
            "EXCLUDE_LOADED_": code("F"),
            "ISO_SEQUENCE_": code("C"),
            "O_SURF_SMOOTHING_": code("F"),
            "RESULT_FILTERING_": code("f"),
            "INPUT_SCALE_": 1.0,
            "COMPONENT_LIM_SIZE_": 0.0,
            "IF_SMOOTHING_": code("F"),
            "IF_SMOOTH_FROZEN_": code("T"),
            "IF_TOLERANCE_": 0.0,
            "IF_BORDER_CYCLES_": 0,
            "IF_INNER_CYCLES_": 0,
            "SHRINKAGE_CORRECTION_": code("F"),
            "LAPLACE_ALPHA_": 0.0,
            "LAPLACE_BETA_": 0.0,
            "WALL_TOLERANCE_": 0.0,
        },
    },
}

JOBS = {"fluid": FLUID, "smooth": SMOOTH_JOB}


def main():
    parser = argparse.ArgumentParser(description="Builds a parameter file with h5py.")
    parser.add_argument("job", choices=JOBS)
    parser.add_argument("file", nargs="?", default="parfile_storage.hdf5")
    parser.add_argument("--newest-format", action="store_true")
    arguments = parser.parse_args()
    build(arguments.file, JOBS[arguments.job], arguments.newest_format)


if __name__ == "__main__":
    main()
