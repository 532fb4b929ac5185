"""Every value of a loaded job, beside what h5py reads from the same file without any help of ours."""

import h5py
from orvelcommands import Gyre_Parfile, ParfileHdf5Storage, Smooth_Parfile
from support import FILE_NAME


def read_element(file, dataset, element):
    """One value of a key, told apart by the type of its dataset alone."""
    if h5py.check_ref_dtype(dataset.dtype):
        return "reference", file[element].name.split("/")[-1]
    if h5py.check_vlen_dtype(dataset.dtype) is not None:
        if element.dtype.kind == "S":
            return "text", b"".join(element).split(b"\0")[0].decode()
        return "list", tuple(element.tolist())
    return "number", element.item()


def read_with_h5py(folder):
    """(kind, id) -> key -> list of values."""
    with h5py.File(folder / FILE_NAME) as file:
        return {(kind, name): {key: [read_element(file, dataset, element) for element in dataset[()]]
                               for key, dataset in command.items()}
                for kind, commands in file["PARFILE"].items() for name, command in commands.items()}


def as_plain(sort, value):
    """A value of the module in the terms of read_element."""
    if sort == "reference":
        return value.ID_NAME_
    return int(value) if sort == "number" and isinstance(value, int) else value


def differences(found, stored):
    """What differs between a command and its keys in the file, and how many values were compared."""
    wrong, count = [], 0
    keys = [name for name in dir(type(found)) if name.endswith("_") and not name.startswith(("_", "Enum_"))]
    for key in set(keys) - {"ID_NAME_"}:
        value = getattr(found, key)
        expected = stored.get(key, [])
        values = [value] if not isinstance(value, tuple) or (expected and expected[0][0] == "list") else list(value)
        if not expected:
            wrong += [] if value in (None, ()) else [f"{found!r}.{key} is {value!r}, absent in the file"]
            continue
        plain = [(sort, as_plain(sort, one)) for (sort, _), one in zip(expected, values)]
        wrong += [] if (plain, len(values)) == (expected, len(expected)) else [f"{found!r}.{key}: {values} {expected}"]
        count += len(values)
    wrong += [f"{found!r} has no {key}" for key in stored.keys() - set(keys)]
    return wrong, count


def compare(job, folder):
    stored = read_with_h5py(folder)
    loaded = {(type(command).__name__, command.ID_NAME_): command for command in job}
    assert loaded.keys() == stored.keys()
    results = [differences(command, stored[place]) for place, command in loaded.items()]
    assert [line for wrong, _ in results for line in wrong] == []
    return len(loaded), sum(count for _, count in results)


def test_every_value_of_the_bent_duct_is_what_h5py_reads(bent_duct):
    with ParfileHdf5Storage(bent_duct) as storage:
        job = Gyre_Parfile(storage)
    assert compare(job, bent_duct) == (55, 477 + 49)


def test_every_value_of_the_smoothing_job_is_what_h5py_reads(smoothing):
    with ParfileHdf5Storage(smoothing) as storage:
        job = Smooth_Parfile(storage)
    assert compare(job, smoothing) == (1, 74)


def test_h5py_reads_the_same_file_while_the_storage_is_open(bent_duct):
    with ParfileHdf5Storage(bent_duct) as storage:
        job = Gyre_Parfile(storage)
        assert compare(job, bent_duct)[0] == 55
        assert storage.GetNumCommand("DV_") == 3
