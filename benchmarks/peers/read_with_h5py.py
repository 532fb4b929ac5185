#!/usr/bin/python3
"""Reads a parameter file into dictionaries with a few lines of h5py and prints the seconds of processor time that it took.

A reference becomes the id of its target by the target's address, from a table that one walk makes. Asked for the name of a
dereferenced group, as in `file[reference].name`, HDF5 searches the whole file: minutes for a job of thousands of commands.
"""

import sys
import time

import h5py


def read_values(dataset, id_at):
    values = dataset[()]
    if h5py.check_ref_dtype(dataset.dtype):
        return [id_at[h5py.h5o.get_info(h5py.h5r.dereference(value, dataset.id)).addr] for value in values]
    if h5py.check_vlen_dtype(dataset.dtype) == "S1":
        return [b"".join(text).decode() for text in values]
    return list(values)


def read_job(path):
    with h5py.File(path) as file:
        kinds = file["PARFILE"]
        id_at = {h5py.h5o.get_info(command.id).addr: name
                 for commands in kinds.values() for name, command in commands.items()}
        return {kind: {name: {key: read_values(dataset, id_at) for key, dataset in command.items()}
                       for name, command in commands.items()}
                for kind, commands in kinds.items()}


def main():
    begin = time.process_time()
    job = read_job(sys.argv[1])
    seconds = time.process_time() - begin
    if not job["ALGO_"]:
        sys.exit(f"{sys.argv[1]}: no job")
    print(seconds)


if __name__ == "__main__":
    main()
