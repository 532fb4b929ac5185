/// \file
/// An optimization database that is the one of the process while an object lives. One thread at a time.
#pragma once

#include "OrvelDbFactory/OrvelDbInstance.h"

#include <initializer_list>
#include <string>

class OpenDatabase
{
public:
  OpenDatabase() { OrvelDbInstance::s_Singleton = &m_database; }
  ~OpenDatabase() { OrvelDbInstance::s_Singleton = nullptr; }
  OpenDatabase(const OpenDatabase&) = delete;
  OpenDatabase& operator=(const OpenDatabase&) = delete;

  void Add(KLV_IdType type, std::initializer_list<const char*> ids)
  {
    for (const char* id : ids)
    {
      Map(type).Add(id);
    }
  }

  KLV_IdMap& Map(KLV_IdType type) { return m_database.GetIdMapsPool().GetIdMap(type); }

private:
  KLV_Database m_database;
};
