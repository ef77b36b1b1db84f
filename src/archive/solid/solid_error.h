// Why a solid payload can't be used.
#pragma once

#include <exception>

namespace quillon {

class SolidError : public std::exception {
public:
    enum class Kind { NoPayload, Damaged, Unsupported };

    /// `what` is a literal: what was wrong, in words for a line about the file.
    SolidError(Kind kind, const char* what) : kind_(kind), what_(what) {}

    Kind Reason() const { return kind_; }
    const char* what() const noexcept override { return what_; }

private:
    Kind kind_;
    const char* what_;
};

[[noreturn]] inline void RefuseSolid(const char* what)
{
    throw SolidError(SolidError::Kind::Damaged, what);
}

} // namespace quillon
