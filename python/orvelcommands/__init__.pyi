from . import commands as commands
from . import failures as failures
from . import parfile as parfile
from . import schema as schema
from . import storage as storage
from .commands import *
from .failures import Hdf5Exception as Hdf5Exception
from .failures import KLV_Exception as KLV_Exception
from .failures import KLV_Failure as KLV_Failure
from .failures import KLV_ParfileException as KLV_ParfileException
from .parfile import *
from .storage import *
