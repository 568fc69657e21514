#pragma once
// A routine of the store that meets a failure (a line with too few fields,
// a one-character field, a number that doesn't convert) ends through its
// one failure path. Inside the store that path is this exception; every
// public routine that reports true or false catches it.
#include <stdexcept>

class RoutineFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
