#include "OrvelCommands/parfile/Parfile.h"

Parfile::Parfile(const OrvelParfileStorage& storage) : m_storage(storage) {}

Parfile::Parfile(const Parfile& other) = default;

Parfile::Parfile(Parfile&& other) noexcept = default;

Parfile::~Parfile() = default;
