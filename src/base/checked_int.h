// Whole numbers of fixed width that check themselves.
//
// Integer is 16 bits signed, Long 32 bits signed, Byte 8 bits unsigned. Storing a value that does not fit and
// any sum, difference, product or quotient that does not fit the operands' type throws ProgramError; nothing
// wraps. A whole-number quotient drops its fraction; dividing by 0 is a ProgramError too. A plain `int`
// operand is taken into the other operand's type first. They convert to plain arithmetic types freely, since
// that loses nothing.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

namespace quorrin {

[[noreturn]] void throwDoesNotFit(const char* type, std::int64_t value);
[[noreturn]] void throwDoesNotFit(const char* type, double value);
[[noreturn]] void throwDivisionByZero();

template <typename Rep>
class CheckedInt {
  public:
    constexpr CheckedInt() = default;
    template <typename T, typename = std::enable_if_t<std::is_integral_v<T> && !std::is_same_v<T, bool>>>
    constexpr CheckedInt(T value) : value_(fitAny(value)) {}  // NOLINT: implicit by design
    template <typename Other>
    constexpr explicit CheckedInt(CheckedInt<Other> other) : value_(fit(other.value())) {}

    constexpr Rep value() const { return value_; }
    constexpr operator Rep() const { return value_; }  // NOLINT: widening is harmless

    constexpr CheckedInt& operator+=(CheckedInt o) { return *this = *this + o; }
    constexpr CheckedInt& operator-=(CheckedInt o) { return *this = *this - o; }
    constexpr CheckedInt& operator++() { return *this += CheckedInt(1); }
    constexpr CheckedInt& operator--() { return *this -= CheckedInt(1); }
    constexpr CheckedInt operator-() const { return CheckedInt(-static_cast<std::int64_t>(value_)); }

    friend constexpr CheckedInt operator+(CheckedInt a, CheckedInt b) {
        return CheckedInt(wide(a) + wide(b));
    }
    friend constexpr CheckedInt operator-(CheckedInt a, CheckedInt b) {
        return CheckedInt(wide(a) - wide(b));
    }
    friend constexpr CheckedInt operator*(CheckedInt a, CheckedInt b) {
        return CheckedInt(wide(a) * wide(b));
    }
    friend constexpr CheckedInt operator/(CheckedInt a, CheckedInt b) {
        if (b.value_ == 0) throwDivisionByZero();
        return CheckedInt(wide(a) / wide(b));
    }
    friend constexpr CheckedInt operator%(CheckedInt a, CheckedInt b) {
        if (b.value_ == 0) throwDivisionByZero();
        return CheckedInt(wide(a) % wide(b));
    }
    // Only for whole operands: with a double they are ordinary floating-point operations.
    template <typename T, typename = std::enable_if_t<std::is_integral_v<T>>>
    friend constexpr CheckedInt operator/(CheckedInt a, T b) {
        return a / CheckedInt(b);
    }
    template <typename T, typename = std::enable_if_t<std::is_integral_v<T>>>
    friend constexpr CheckedInt operator%(CheckedInt a, T b) {
        return a % CheckedInt(b);
    }
    friend constexpr CheckedInt operator+(CheckedInt a, int b) { return a + CheckedInt(b); }
    friend constexpr CheckedInt operator-(CheckedInt a, int b) { return a - CheckedInt(b); }
    friend constexpr CheckedInt operator*(CheckedInt a, int b) { return a * CheckedInt(b); }
    friend constexpr CheckedInt operator+(int a, CheckedInt b) { return CheckedInt(a) + b; }
    friend constexpr CheckedInt operator-(int a, CheckedInt b) { return CheckedInt(a) - b; }
    friend constexpr CheckedInt operator*(int a, CheckedInt b) { return CheckedInt(a) * b; }

  private:
    static constexpr std::int64_t wide(CheckedInt x) { return x.value_; }
    static constexpr const char* name() {
        return sizeof(Rep) == 1 ? "Byte" : sizeof(Rep) == 2 ? "Integer" : "Long";
    }
    template <typename T>
    static constexpr Rep fitAny(T value) {
        if constexpr (std::is_unsigned_v<T> && sizeof(T) == sizeof(std::int64_t)) {
            constexpr T kLargest = std::numeric_limits<std::int64_t>::max();
            if (value > kLargest) throwDoesNotFit(name(), static_cast<double>(value));
        }
        return fit(static_cast<std::int64_t>(value));
    }
    static constexpr Rep fit(std::int64_t value) {
        if (value < std::numeric_limits<Rep>::min() || value > std::numeric_limits<Rep>::max())
            throwDoesNotFit(name(), value);
        return static_cast<Rep>(value);
    }

    Rep value_ = 0;
};

using Integer = CheckedInt<std::int16_t>;
using Long = CheckedInt<std::int32_t>;
using Byte = CheckedInt<std::uint8_t>;

}  // namespace quorrin
