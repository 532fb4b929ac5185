/// \file
/// The result types of accessors, which programs built against the library rely on. Compile time only.
#pragma once

#include <type_traits>

/// Whether each of \p Accessors is a const operation of \p Command without arguments that returns \p Result.
template <class Command, class Result, auto... Accessors>
constexpr bool kReturn = (std::is_same_v<decltype(Accessors), Result (Command::*)() const> && ...);
