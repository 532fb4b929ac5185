"""What the tests of orvel-parfile check share: findings as a program reads them."""

import json
import typing

from support import ToolTest, doubles, integers, minimal_job, references, texts, write_parameter_file

ALL_RULES = [
    "library", "impossible-name", "foreign-object", "unknown-kind", "unknown-key", "missing-key", "wrong-type",
    "wrong-count", "not-an-enumerator", "command-count", "unresolved-reference", "wrong-target",
    "unreachable-command", "reference-cycle", "list-lengths", "response-or-operator", "limits", "no-basis",
    "unknown-model-id", "unused-group", "unused-model-group"]

# What errors and warnings there are, by rule; notes do not count for the exit code.
WARNINGS = {"foreign-object", "unreachable-command", "unused-group"}
NOTES = {"unused-model-group"}


class Finding(typing.NamedTuple):
    """What the tests ask about a finding."""

    rule: str
    kind: str
    id: str
    key: str
    value: str


class CheckTest(ToolTest):
    """With what several groups of tests of check need."""

    def build(self, job):
        """Builds a parameter file with h5py in the folder of the test."""
        return write_parameter_file(self.folder, job)

    def report(self, *arguments):
        """The answer of check as JSON; its exit code must follow from its findings."""
        result = self.tool("check", *arguments, "--json")
        self.assertEqual("", result.err)
        report = json.loads(result.out)
        severities = {finding["severity"] for finding in report["findings"]}
        self.assertEqual(1 if severities & {"error", "warning"} else 0, result.code, result.out)
        return report

    def findings(self, *arguments, of=None):
        """The findings of one rule, or of all but the library's, in their order."""
        return [Finding(**{name: finding[name] for name in Finding._fields})
                for finding in self.report(*arguments)["findings"]
                if (finding["rule"] == of if of else finding["rule"] != "library")]

    def texts(self, *arguments, of):
        """The texts of the findings of one rule."""
        return [finding["text"] for finding in self.report(*arguments)["findings"] if finding["rule"] == of]

    def remedies(self, *arguments, of):
        """The remedies of the findings of one rule."""
        return [finding["remedy"] for finding in self.report(*arguments)["findings"] if finding["rule"] == of]


def sound_job():
    """The least job without any finding: 12 kinds of one command, 89 values (2 of them model ids), 9 references."""
    job = minimal_job()
    job["DRESP_"] = {"pressure": response()}
    job["OBJ_FUNC_"]["loss"]["DRESP_"] = references("DRESP_/pressure")
    return job


def response():
    """The keys of a response that are always there."""
    return {
        "TYPE_": integers(1001), "UPDATE_TYPE_": integers(67), "UPDATE_ID_": texts("solver"),
        "UPDATE_INDEX_": integers(1), "WRITE_INTERVAL_": integers(10), "LOADCASE_": integers(1),
        "ITER_MAX_": integers(100), "ITER_MIN_": integers(10), "RESIDUAL_": doubles(1e-5),
        "ADJOINT_RESIDUAL_": doubles(1e-4), "ADJOINT_DEVIATION_": doubles(1e-3), "OBJECTIVE_DEVIATION_": doubles(1e-4)}


def operator(**keys):
    """The keys of an operator that are always there, and these."""
    return {"TYPE_": integers(87), "UPDATE_TYPE_": integers(67), "UPDATE_ID_": texts("design"),
            "UPDATE_INDEX_": integers(1), "FACTOR_": doubles(1.0), **keys}


def coordinate_system(first, second, third):
    """The keys of a coordinate system with these axis vectors."""
    vectors = {f"{axis}_VEC{number}_": doubles(component)
               for number, vector in enumerate((first, second, third), start=1)
               for axis, component in zip("XYZ", vector)}
    return {"TYPE_": integers(82), **vectors}
