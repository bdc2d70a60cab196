#pragma once

#include "base/Error.h"

#include <tl/expected.hpp>

#include <utility>

namespace tembra {

// The outcome of anything that can fail: a value or an Error.
template <class T>
using Result = tl::expected<T, Error>;

// Lets a function that returns any Result<T> write `return failure(…)`.
inline tl::unexpected<Error> failure(Error error) {
    return tl::unexpected<Error>(std::move(error));
}

} // namespace tembra
