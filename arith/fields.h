// Fields: elements as floating-point numbers in lanes of that size, and back.
//
// A lane of a wider type holds several elements, its fields, the lowest first: field k of a vector is elements k, k +
// fields, k + 2 * fields and so on. Elements become numbers and return field by field, without ever leaving their
// place.
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET::arith {

template <class T, class Wide>
inline constexpr int fieldsOf = sizeof(Wide) / sizeof(T);

template <class T>
inline constexpr int bitsPerField = 8 * sizeof(T);

// The lane of W whose lowest field is all ones.
template <class T, class W>
inline constexpr W lowestField = static_cast<W>(MaskLane<T>(~MaskLane<T>{0}));

// Field K as unsigned numbers in lanes of W.
template <class W, int K, class T>
PXL_INLINE Vec<W> FieldBits(Vec<T> v) {
    Vec<W> bits = BitCast<W>(v);
    if constexpr (K > 0) bits = ShiftRight<K * bitsPerField<T>>(bits);
    if constexpr (K + 1 < fieldsOf<T, W>) bits = bits & Set<W>(lowestField<T, W>);
    return bits;
}

// The double whose mantissa ends with the units: added to a smaller integer, it leaves it in the lower bits of the sum.
inline constexpr double unitsAtEnd = 4503599627370496.0; // 2^52

// Field K, as unsigned numbers, less `bias`. Below 2^52, bits are a number as soon as those of 2^52 stand above them.
template <int K, class U>
PXL_INLINE Vec<double> BiasedField(Vec<U> v, double bias) {
    static_assert(std::is_unsigned_v<U> && sizeof(U) < sizeof(double));
    const auto bits = FieldBits<uint64_t, K>(v) | Set<uint64_t>(std::bit_cast<uint64_t>(unitsAtEnd));
    return BitCast<double>(bits) - Set<double>(unitsAtEnd + bias);
}

// Field K as numbers, which are exact: float for elements of 8 and 16 bits, double for 16 and 32.
template <class Real, int K, class T>
PXL_INLINE Vec<Real> Field(Vec<T> v) {
    static_assert(sizeof(T) < sizeof(Real));
    if constexpr (std::is_same_v<Real, double>) {
        using U = MaskLane<T>;
        constexpr U bias = std::is_signed_v<T> ? U{1} << (bitsPerField<T> - 1) : 0;
        return BiasedField<K>(BitCast<U>(v) ^ Set<U>(bias), bias);
    } else if constexpr (std::is_signed_v<T>) {
        const auto lifted = ShiftLeft<32 - bitsPerField<T>*(K + 1)>(BitCast<int32_t>(v));
        return ConvertToFloat(ShiftRight<32 - bitsPerField<T>>(lifted));
    } else {
        return ConvertToFloat(BitCast<int32_t>(FieldBits<uint32_t, K>(v)));
    }
}

// The reverse: elements from the lower bits of the lanes of every field.
template <class T, class W, int Fields>
PXL_INLINE Vec<T> JoinFields(const Vec<W> (&field)[Fields]) {
    static_assert(Fields == fieldsOf<T, W>);
    Vec<W> all = ShiftLeft<bitsPerField<T>*(Fields - 1)>(field[Fields - 1]);
    [&]<int... K>(std::integer_sequence<int, K...>) __attribute__((always_inline)) {
        ((all = all | ShiftLeft<bitsPerField<T> * K>(field[K] & Set<W>(lowestField<T, W>))), ...);
    }
    (std::make_integer_sequence<int, Fields - 1>{});
    return BitCast<T>(all);
}

// Elements of 16 bits as numbers, in the order of InterleaveLower and InterleaveUpper.
struct BlockNumbers {
    Vec<float> lower, upper;

    PXL_INLINE explicit BlockNumbers(Vec<uint16_t> v) : BlockNumbers(v, Zero<uint16_t>()) {}
    // v + fraction / 65536, all of it times 65536.
    PXL_INLINE BlockNumbers(Vec<int16_t> v, Vec<uint16_t> fraction) : BlockNumbers(fraction, BitCast<uint16_t>(v)) {}

private:
    PXL_INLINE BlockNumbers(Vec<uint16_t> low, Vec<uint16_t> high)
        : lower(ConvertToFloat(BitCast<int32_t>(InterleaveLower(low, high)))),
          upper(ConvertToFloat(BitCast<int32_t>(InterleaveUpper(low, high)))) {}
};

// v as numbers; those of signed elements are 65536 times as much, which quotients do not show.
template <class T>
PXL_INLINE BlockNumbers blockNumbersOf(Vec<T> v) {
    if constexpr (std::is_signed_v<T>)
        return {v, Zero<uint16_t>()};
    else
        return BlockNumbers(v);
}

} // namespace pxl::PXL_TARGET::arith
