#ifndef VELARESULT_H
#define VELARESULT_H

#include <cstdint>

namespace Vela {

// The outcome of an operation that can fail: a 32-bit code, 0 for success.
struct Result
{
    enum Code : std::uint32_t {
        Success = 0u,
        NothingChanged = 1u,
        InvalidArgument = 0x80000003u,
        IndexOutOfRange = 0x80000004u,
    };

    constexpr Result() = default;
    constexpr Result(std::uint32_t code)
        : m_code(code)
    { }

    constexpr std::uint32_t code() const { return m_code; }
    constexpr bool succeeded() const { return (m_code & 0x80000000u) == 0; }
    constexpr bool failed() const { return !succeeded(); }
    constexpr operator std::uint32_t() const { return m_code; }

    friend constexpr bool operator==(Result a, Result b) { return a.m_code == b.m_code; }
    friend constexpr bool operator!=(Result a, Result b) { return a.m_code != b.m_code; }

    std::uint32_t m_code = Success;
};

} // namespace Vela

#endif // VELARESULT_H
