#include "OrvelCommands/foundation/ParfileReferenceError.h"

#include <utility>

ParfileReferenceError::ParfileReferenceError(std::string source, std::string target)
  : m_source(std::move(source)), m_target(std::move(target))
{
}

ParfileReferenceError::ParfileReferenceError(const ParfileReferenceError& other) = default;

ParfileReferenceError& ParfileReferenceError::operator=(const ParfileReferenceError& other) = default;

ParfileReferenceError::~ParfileReferenceError() = default;

std::string ParfileReferenceError::GetDescription() const
{
  return m_source + " -> " + m_target;
}
