"""What is measured and what is compared with what. All times are processor time: it leaves out what other programs of the
machine do, and everything measured runs on one thread and reads files that are in memory."""

from dataclasses import dataclass

SIZES = (25, 250, 2500, 25000)
READS = ("PresentInteger", "PresentEnumerator", "PresentText", "AbsentKey", "HasPresentKey", "CountOfKey")


@dataclass(frozen=True)
class Measurement:
    """One benchmark of a program, or h5py reading the job of a size."""
    name: str
    program: str  # "h5py" for the Python program
    benchmark: str


@dataclass(frozen=True)
class Ratio:
    """One row of the table: how many times the second measurement fits into the first, and what it should be."""
    group: str
    what: str
    of: str
    to: str
    at_most: float | None = None
    at_least: float | None = None

    def meets_goal(self, value):
        return (self.at_most is None or value <= self.at_most) and (self.at_least is None or value >= self.at_least)

    def goal(self):
        if self.at_most is not None:
            return f"at most {self.at_most:g}"
        return f"at least {self.at_least:g}" if self.at_least is not None else ""


def file_measurements(sizes):
    for size in sizes:
        for name in ("LoadWithLibrary", "LoadWithDemandedCalls", "LoadWithSmallTransfer", "ReadEachDatasetOnce",
                     "LoadFromJson"):
            yield Measurement(f"{name}/{size}", "hdf5_benchmark", f"{name}/{size}")
        yield Measurement(f"h5py/{size}", "h5py", str(size))


def write_measurements(size):
    for name in ("WriteWithLibrary", "WriteWithDemandedCalls", "WriteWithSmallTransfer"):
        yield Measurement(f"{name}/{size}", "hdf5_benchmark", f"{name}/{size}")


def parsed_measurements():
    names = [f"{read}/{which}" for read in READS for which in (0, 1)]
    names += ["Reference", "HashTable/integer", "HashTable/enumerator", "HashTable/text", "HashTable/absent",
              "HashTable/reference", "HashTableOfIds", "LoadParsedJob", "LoadFromAnswerless", "LoadParsedJobFromJson",
              "LoadCompleteJobFromJson", "QueryById", "BareLoopOverStrings"]
    for name in names:
        yield Measurement(name, "parsed_benchmark", name)


def file_ratios(sizes):
    for size in sizes:
        group = f"Loading {size} commands from HDF5"
        yield Ratio(group, "library / demanded calls in C", f"LoadWithLibrary/{size}", f"LoadWithDemandedCalls/{size}",
                    at_most=1.1)
        yield Ratio(group, "library / the same calls with its small transfer buffer", f"LoadWithLibrary/{size}",
                    f"LoadWithSmallTransfer/{size}")
        yield Ratio(group, "library / each dataset once, no look-up", f"LoadWithLibrary/{size}",
                    f"ReadEachDatasetOnce/{size}")
        yield Ratio(group, "h5py / library", f"h5py/{size}", f"LoadWithLibrary/{size}", at_least=5)
        yield Ratio(group, "h5py / demanded calls in C", f"h5py/{size}", f"LoadWithDemandedCalls/{size}")
        yield Ratio(group, "library / JSON into structs", f"LoadWithLibrary/{size}", f"LoadFromJson/{size}")


def write_ratios(size):
    group = f"Writing {size} commands to HDF5"
    yield Ratio(group, "library / demanded calls in C", f"WriteWithLibrary/{size}", f"WriteWithDemandedCalls/{size}",
                at_most=1.15)
    yield Ratio(group, "library / the same calls with its small transfer buffer", f"WriteWithLibrary/{size}",
                f"WriteWithSmallTransfer/{size}")


def parsed_ratios():
    group = "A read of parsed commands, in look-ups of its key in a hash table"
    for read, key, most in (("PresentInteger", "integer", 3), ("PresentEnumerator", "enumerator", 3),
                            ("PresentText", "text", None), ("HasPresentKey", "text", None),
                            ("CountOfKey", "text", None), ("AbsentKey", "absent", 2)):
        yield Ratio(group, f"{read}, one command", f"{read}/0", f"HashTable/{key}", at_most=most)
    yield Ratio(group, "Reference", "Reference", "HashTable/reference")
    group = "A read of each parsed response, in look-ups of the ids in a hash table"
    for read, most in (("PresentInteger", 3), ("PresentEnumerator", 3), ("PresentText", None), ("AbsentKey", 2)):
        yield Ratio(group, f"{read}, all responses", f"{read}/1", "HashTableOfIds", at_most=most)
    group = "Loading 2500 parsed commands"
    yield Ratio(group, "complete job from JSON / library", "LoadCompleteJobFromJson", "LoadParsedJob", at_least=10)
    yield Ratio(group, "what the engine holds from JSON / library", "LoadParsedJobFromJson", "LoadParsedJob")
    yield Ratio(group, "complete job from JSON / a storage that answers nothing", "LoadCompleteJobFromJson",
                "LoadFromAnswerless")
    yield Ratio("Queries by id", "library / bare loop over strings", "QueryById", "BareLoopOverStrings", at_most=1.5)
