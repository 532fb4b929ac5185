#!/usr/bin/python3
"""The example that loads a parsed job without any file: it runs in an empty folder, leaves it empty and prints every
command with its references.

    ORVEL_PARSED_JOB=... parsed_job_test.py

The variable names the program parsed_job.
"""

import os
import subprocess
import tempfile
import unittest

PARSED_JOB = os.path.abspath(os.environ["ORVEL_PARSED_JOB"])

# The OPTIMIZE with every reference that it needs; those without a name are there even if nothing was parsed.
ALGO = [
    "[%T|%n|%P|OrvelCommands|ALGO_] ",
    "m_ID_NAME_: minimise_losses",
    "m_STRATEGY_: TOPO_SENS",
    "m_DV_: __v_merged_DV",
    "m_OBJ_FUNC_: least_losses",
    "m_num_CONSTRAINT_: 0",
    "m_CONSTRAINT_: [",
    "]",
    "m_num_DV_CONSTRAINT_: 0",
    "m_DV_CONSTRAINT_: [",
    "]",
    "m_OPT_PARAM_: settings",
    "m_STOP_: after_eighty",
    "m_PRE_PARAM_: ",
    "m_num_MESH_SMOOTH_: 0",
    "m_MESH_SMOOTH_: [",
    "]",
    "m_num_MONITOR_: 0",
    "m_MONITOR_: [",
    "]",
    "m_AS_TOPO_OC_: settings",
    "m_AS_TOPO_SENS_: settings",
    "m_AS_SHAPE_SENS_: settings",
    "m_DEVELOPER_OUTPUT_: INVALID",
]

# The head of every command in the order of loading, with its name.
COMMANDS = [
    "MODEL_ bent_duct",
    "ELEMENT_GROUP_ pipes",
    "ELEMENT_GROUP_ design_space",
    "DV_ porosity_left",
    "DV_ porosity_right",
    "DV_ __v_merged_DV",
    "DRESP_ outlet_a",
    "DRESP_ outlet_b",
    "DRESP_ pressure_drop",
    "OPERATOR_ uniform_outlets",
    "OPERATOR_ losses",
    "OBJ_FUNC_ least_losses",
    "ALGO_ minimise_losses",
    "OPT_PARAM_ settings",
    "STOP_ after_eighty",
    "FILTER_ smooth_field",
    "PRE_PARAM_ ",
    "AS_TOPO_OC_ settings",
    "AS_TOPO_SENS_ settings",
    "AS_SHAPE_SENS_ settings",
    "FLOWPATHS_ ",
]


class ParsedJobTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            cls.program = subprocess.run([PARSED_JOB], cwd=folder, capture_output=True, encoding="utf-8", timeout=120)
            cls.left_behind = os.listdir(folder)

    def block(self, kind, name):
        """What the program prints of one command."""
        head = f"[%T|%n|%P|OrvelCommands|{kind}] \nm_ID_NAME_: {name}\n"
        found = [block + "\n" for block in self.program.stdout.split("\n\n") if block.startswith(head)]
        self.assertEqual(len(found), 1, self.program.stdout)
        return found[0]

    def test_ends_well_without_a_word_on_standard_error(self):
        self.assertEqual(self.program.stderr, "")
        self.assertEqual(self.program.returncode, 0)

    def test_makes_no_file(self):
        self.assertEqual(self.left_behind, [])

    def test_prints_every_command_once_in_the_order_of_loading(self):
        heads = []
        lines = self.program.stdout.splitlines()
        for prefix, name in zip(lines, lines[1:]):
            if prefix.startswith("[%T|%n|%P|OrvelCommands|"):
                kind = prefix[len("[%T|%n|%P|OrvelCommands|"):].rstrip("] ")
                heads.append(f"{kind} {name[len('m_ID_NAME_: '):]}")
        self.assertEqual(heads, COMMANDS)

    def test_prints_the_optimize_linked_with_every_reference(self):
        self.assertEqual(self.block("ALGO_", "minimise_losses").splitlines(), ALGO)

    def test_prints_the_two_variables_as_members_of_the_merged_one(self):
        merged = self.block("DV_", "__v_merged_DV")
        self.assertIn("m_num_DV_: 2\nm_DV_: [\nporosity_left porosity_right ]\n", merged)
        self.assertIn("m_num_DV_: 0\n", self.block("DV_", "porosity_left"))
        self.assertIn("m_num_FILTER_: 1\nm_FILTER_: [\nsmooth_field ]\n", self.block("DV_", "porosity_right"))

    def test_prints_the_groups_by_merge_and_subtraction(self):
        pipes = self.block("ELEMENT_GROUP_", "pipes")
        self.assertIn("m_num_MERGE_: 2\nm_MERGE_: [\ninlet_pipe outlet_pipe]\n", pipes)
        self.assertIn("m_num_SUBTRACT_: 0\nm_SUBTRACT_: [\n]\n", pipes)
        design_space = self.block("ELEMENT_GROUP_", "design_space")
        self.assertIn("m_num_MERGE_: 0\nm_MERGE_: [\n]\n", design_space)
        self.assertIn("m_num_SUBTRACT_: 2\nm_SUBTRACT_: [\npipes bolt_bosses]\n", design_space)

    def test_prints_the_operator_over_a_response_and_another_operator(self):
        losses = self.block("OPERATOR_", "losses")
        self.assertIn("m_TYPE_: WEIGHTED_SUM\n", losses)
        self.assertIn("m_num_DRESP_: 1\nm_DRESP_: [\npressure_drop ]\n", losses)
        self.assertIn("m_num_OPERATOR_: 1\nm_OPERATOR_: [\nuniform_outlets ]\n", losses)
        uniform = self.block("OPERATOR_", "uniform_outlets")
        self.assertIn("m_num_DRESP_: 2\nm_DRESP_: [\noutlet_a outlet_b ]\n", uniform)

    def test_prints_the_objective_linked_to_the_operator_and_to_no_response(self):
        objective = self.block("OBJ_FUNC_", "least_losses")
        self.assertIn("m_has_DRESP_: no\n", objective)
        self.assertIn("m_has_OPERATOR_: yes\nm_OPERATOR_: losses\n", objective)

    def test_prints_the_update_parameters_with_the_settings(self):
        for kind in ("AS_TOPO_SENS_", "AS_SHAPE_SENS_"):
            settings = self.block(kind, "settings")
            self.assertIn("m_has_MIN_: yes\nm_MIN_: 0.001\n", settings)
            self.assertIn("m_has_MAX_: yes\nm_MAX_: 1\n", settings)
            self.assertIn("m_MOVE_: 0.1\n", settings)


if __name__ == "__main__":
    unittest.main()
