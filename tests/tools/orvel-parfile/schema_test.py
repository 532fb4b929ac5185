"""What `orvel-parfile schema` tells of the commands."""

import json
import subprocess
import sys
import tomllib
import unittest
from pathlib import Path

import jsonschema

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
        cls.whole = json.loads(schema("--json-schema").stdout)
        cls.kinds = cls.whole["properties"]

    def keys(self, kind):
        return self.kinds[kind]["additionalProperties"]

    def complaints(self, text):
        """What a validator of JSON schemas says of a job description."""
        validator = jsonschema.Draft202012Validator(self.whole)
        return sorted(error.json_path for error in validator.iter_errors(tomllib.loads(text)))

    def test_tells_the_type_of_each_sort_of_key(self):
        def plain(kind, key):
            return self.keys(kind)["properties"][key]["anyOf"][0]

        self.assertEqual(plain("DV_", "INITIAL_")["type"], "number")
        self.assertEqual(plain("DV_", "ELEMENT_GROUP_")["type"], "string")
        self.assertEqual(plain("DV_", "FILTER_")["items"], {"type": "string"})
        self.assertEqual(plain("DV_", "TYPE_")["enum"], ["AUTO", "DENSITY", "DETACHED", "NODAL", "NODAL_VECTOR"])
        self.assertEqual(plain("STOP_", "ITER_MAX_")["maximum"], 2147483647)
        self.assertEqual(plain("OUTPUT_", "ITERATION_")["items"]["type"], "integer")
        self.assertEqual(plain("OUTPUT_", "CUTOFF_")["items"]["type"], "number")

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

    def test_takes_the_example_jobs(self):
        for example in ("bent_duct", "smooth"):
            with self.subTest(example):
                self.assertEqual(self.complaints((REPOSITORY / "examples" / example / "job.toml").read_text()), [])

    def test_takes_what_no_command_reads_where_it_stands_with_its_type(self):
        self.assertEqual(self.complaints(
            'extra_kinds = ["REPORT_"]\n[REPORT_.r]\nPAGES_ = { type = "int64", values = [3] }\n'
            '[MODEL_.m]\nFILE_ = { type = "text", hex = ["ff"] }\nSCALE_ = { type = "number", values = [1.0] }\n'), [])

    def test_finds_a_wrong_value_key_and_kind_at_its_place(self):
        self.assertEqual(self.complaints(
            '[MODEL_.m]\nFILE_ = 1\nFIEL_ = "m"\n[STOP_.s]\nITER_MAX_ = { type = "int", values = [1] }\n'
            'ITER_MIN_ = 1\nRESIDUAL_OBJ_ = 1.0\nRESIDUAL_DV_ = 1.0\n[REPROT_.r]\nFILE_ = "x"\n'),
            ["$.MODEL_.m.FIEL_", "$.MODEL_.m.FILE_", "$.REPROT_.r.FILE_", "$.STOP_.s.ITER_MAX_"])


if __name__ == "__main__":
    unittest.main()
