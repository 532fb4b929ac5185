from typing import Any

from . import commands as commands
from . import parfile as parfile
from . import storage as storage

schema_rows: tuple[tuple[Any, ...], ...]
