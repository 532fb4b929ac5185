"""Parameter files of optimization jobs: open, load, check and fill them.

    from orvelcommands import Gyre_Parfile, ParfileHdf5Storage

    with ParfileHdf5Storage("run") as storage:
        job = Gyre_Parfile(storage)
    for filter in job.ALGO_.DV_.FILTER_:
        print(filter.ID_NAME_, filter.RADIUS_)
"""

import sys

from . import failures, schema
from ._native import commands, parfile, storage
from .failures import Hdf5Exception, KLV_Exception, KLV_Failure, KLV_ParfileException

# The parts of the extension module become modules that can be imported by their names.
for _part in (commands, parfile, storage):
    sys.modules[_part.__name__] = _part

from .commands import *
from .parfile import *
from .storage import *
