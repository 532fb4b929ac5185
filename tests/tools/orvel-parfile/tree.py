"""All that an HDF5 file holds, as h5py reads it: to see that nothing but the intended has changed."""

import h5py
import numpy


def tree_of(path):
    """Path of each object -> what stands there, with its type, shape, layout, values and attributes."""
    with h5py.File(path, "r") as file:
        tree = {"/": _attributes(file, file)}
        _walk(file, file, "", tree)
    return tree


def changes(before, after):
    """Path -> (before, after) of all that differs between two trees, None for what is not there."""
    return {path: (before.get(path), after.get(path)) for path in sorted(before.keys() | after.keys())
            if before.get(path) != after.get(path)}


def _walk(file, group, start, tree):
    for name in group:
        path = f"{start}/{name}"
        link = group.get(name, getlink=True)
        if isinstance(link, h5py.SoftLink):
            tree[path] = ("soft link", link.path)
        elif isinstance(link, h5py.ExternalLink):
            tree[path] = ("external link", link.filename, link.path)
        else:
            item = group[name]
            tree[path] = (_content(file, item), _attributes(file, item))
            if isinstance(item, h5py.Group):
                _walk(file, item, path, tree)


def _content(file, item):
    if isinstance(item, h5py.Dataset):
        return (_type(item.id.get_type()), item.shape, item.maxshape, item.chunks, _plain(file, item[()]))
    return "group" if isinstance(item, h5py.Group) else _type(item.id)


def _type(type_id):
    return bytes(type_id.encode())


def _attributes(file, item):
    return {name: (_type(h5py.h5a.open(item.id, name.encode()).get_type()), _plain(file, item.attrs[name]))
            for name in item.attrs}


def _plain(file, value):
    if isinstance(value, h5py.Reference):
        return ("to", file[value].name) if value else ("to nothing",)
    if isinstance(value, numpy.ndarray):
        if value.dtype == object or value.dtype.hasobject:
            return [_plain(file, one) for one in value.flat]
        return value.tobytes()
    return value if isinstance(value, (bytes, str)) else numpy.asarray(value).tobytes()
