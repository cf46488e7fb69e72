#pragma once

#include <exception>

/// Thrown when a product of two numerators or denominators does not fit into 64 bits.
///
/// Fraction throws and catches it; callers of Fraction never see it.
class OverflowErrorException : public std::exception
{
public:
    [[nodiscard]] const char* what() const noexcept override { return "Arithmetic Overflow"; }
};
