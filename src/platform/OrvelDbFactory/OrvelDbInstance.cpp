#include "OrvelDbFactory/OrvelDbInstance.h"

KLV_Database* OrvelDbInstance::s_Singleton = nullptr;
