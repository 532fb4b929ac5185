#include "OrvelCommands/foundation/OrvelParfileStorage.h"

OrvelParfileStorage::OrvelParfileStorage() = default;

OrvelParfileStorage::OrvelParfileStorage(const OrvelParfileStorage&) = default;

OrvelParfileStorage& OrvelParfileStorage::operator=(const OrvelParfileStorage&) = default;

OrvelParfileStorage::~OrvelParfileStorage() = default;
