"""What `orvel-parfile schema` tells of the commands."""

import json
import subprocess
import sys
import tomllib
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from support import TOOL  # noqa: E402

REPOSITORY = Path(__file__).resolve().parents[3]


def schema(*arguments):
    return subprocess.run([TOOL, "schema", *arguments], capture_output=True, text=True, check=False)


class Schema(unittest.TestCase):
    def test_tells_one_kind_with_its_keys_types_and_ranges(self):
        ended = schema("MONITOR_")
        self.assertEqual(
            (ended.stdout, ended.stderr, ended.returncode),
            ("MONITOR_ (MONITOR), any number\n"
             "  Monitor: one design response that is watched during the run.\n"
             "  DRESP_: reference, always\n"
             "      Response to watch.\n"
             "      to a DRESP_\n\n", "", 0))

    def test_tells_all_kinds_in_the_order_of_loading(self):
        heads = [line.split()[0] for line in schema().stdout.splitlines() if line and not line.startswith(" ")]
        self.assertEqual(heads, [
            "MODEL_", "ELEMENT_GROUP_", "FACE_GROUP_", "NODE_GROUP_", "DV_", "DRESP_", "OPERATOR_", "OBJ_FUNC_",
            "CONSTRAINT_", "CS_", "DV_CONSTRAINT_", "MONITOR_", "ALGO_", "OPT_PARAM_", "STOP_", "MESH_SMOOTH_",
            "FILTER_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_", "FLOWPATHS_", "OUTPUT_",
            "SCALING_CURVE_", "SMOOTH_"])

    def test_refuses_an_unknown_kind_and_offers_the_nearest(self):
        ended = schema("FILTR_")
        self.assertEqual((ended.stdout, ended.returncode), ("", 2))
        self.assertTrue(ended.stderr.startswith("there is no kind of command FILTR_; the nearest is FILTER_; there are"))

    def test_gives_the_page_that_the_documentation_holds(self):
        page = (REPOSITORY / "docs" / "commands.md").read_text(encoding="utf-8")
        self.assertEqual(schema("--markdown").stdout, page,
                         "mend with: orvel-parfile schema --markdown > docs/commands.md")


class JsonSchema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.kinds = json.loads(schema("--json-schema").stdout)["properties"]

    def keys(self, kind):
        return self.kinds[kind]["additionalProperties"]

    def test_tells_the_type_of_each_sort_of_key(self):
        variable = self.keys("DV_")["properties"]
        self.assertEqual(variable["INITIAL_"]["type"], "number")
        self.assertEqual(variable["ELEMENT_GROUP_"]["type"], "string")
        self.assertEqual(variable["FILTER_"]["items"], {"type": "string"})
        self.assertEqual(variable["TYPE_"]["enum"], ["AUTO", "DENSITY", "DETACHED", "NODAL", "NODAL_VECTOR"])
        self.assertEqual(self.keys("STOP_")["properties"]["ITER_MAX_"]["maximum"], 2147483647)
        self.assertEqual(self.keys("OUTPUT_")["properties"]["ITERATION_"]["items"]["type"], "integer")
        self.assertEqual(self.keys("OUTPUT_")["properties"]["CUTOFF_"]["items"]["type"], "number")

    def test_requires_the_keys_that_must_always_be_there(self):
        self.assertEqual(self.keys("DV_")["required"], ["INITIAL_", "TYPE_"])
        self.assertEqual(self.keys("MODEL_")["required"], ["FILE_"])
        self.assertEqual(self.keys("FLOWPATHS_")["required"], [])

    def test_knows_every_key_of_the_example_jobs(self):
        for example in ("bent_duct", "smooth"):
            job = tomllib.loads((REPOSITORY / "examples" / example / "job.toml").read_text(encoding="utf-8"))
            for kind, commands in job.items():
                for identifier, keys in commands.items():
                    with self.subTest(kind=kind, id=identifier):
                        self.assertLessEqual(set(keys), set(self.keys(kind)["properties"]))
                        self.assertLessEqual(set(self.keys(kind)["required"]), set(keys))


if __name__ == "__main__":
    unittest.main()
