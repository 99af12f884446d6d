// Vectors with the vocabulary of Highway: the target's primitives (PXL_VECTORS, a file of this room that the build chooses), and the
// operators that need no instruction by name. Kernels are written once over them; they ask for lanes, blocks and abilities of a
// target, and never for its name.
#pragma once

#include PXL_VECTORS

namespace pxl::PXL_TARGET {

// Scalars go through memcpy, since odd steps misalign elements.
template <class T>
PXL_INLINE T load1(const T* p) {
    T value;
    std::memcpy(&value, p, sizeof value);
    return value;
}
template <class T>
PXL_INLINE void store1(T* p, T value) {
    std::memcpy(p, &value, sizeof value);
}

// Calls body(j) for j = 0 .. Count - 1, each a constant.
template <int Count, class Body>
PXL_INLINE void unrolled(Body&& body) {
    [&]<int... j>(std::integer_sequence<int, j...>) __attribute__((always_inline)) {
        (body(std::integral_constant<int, j>{}), ...);
    }
    (std::make_integer_sequence<int, Count>{});
}

// ---- constants ------------------------------------------------------------------------------------------------------

template <class T>
PXL_INLINE Vec<T> Zero() {
    return {typename Vec<T>::Raw{}};
}
template <class T>
PXL_INLINE Vec<T> Set(std::type_identity_t<T> value) {
    return {value - typename Vec<T>::Raw{}}; // x - 0 keeps every bit of x, -0.0 too
}
// A vector whose lane i is Lane(i).
template <class T, auto Lane>
PXL_INLINE Vec<T> fromLanes() {
    return []<int... I>(std::integer_sequence<int, I...>) {
        return Vec<T>{typename Vec<T>::Raw{static_cast<T>(Lane(I))...}};
    }
    (std::make_integer_sequence<int, lanes<T>>{});
}

// ---- arithmetic and bits --------------------------------------------------------------------------------------------

template <class T>
PXL_INLINE Vec<T> operator+(Vec<T> a, Vec<T> b) {
    return {a.raw + b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator-(Vec<T> a, Vec<T> b) {
    return {a.raw - b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator*(Vec<T> a, Vec<T> b) {
    return {a.raw * b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator/(Vec<T> a, Vec<T> b) {
    static_assert(std::is_floating_point_v<T>);
    return {a.raw / b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator&(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(ints(a) & ints(b)));
}
template <class T>
PXL_INLINE Vec<T> operator|(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(ints(a) | ints(b)));
}
template <class T>
PXL_INLINE Vec<T> operator^(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(ints(a) ^ ints(b)));
}
template <class T>
PXL_INLINE Vec<T> operator~(Vec<T> a) {
    return fromInts<T>(~ints(a));
}
// ~a & b
template <class T>
PXL_INLINE Vec<T> AndNot(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(~ints(a) & ints(b)));
}

// Shifts of lanes of 2, 4 or 8 bytes; signed lanes shift right arithmetically.
template <int Count, class T>
PXL_INLINE Vec<T> ShiftLeft(Vec<T> v) {
    static_assert(sizeof(T) > 1);
    return {v.raw << Count};
}
template <int Count, class T>
PXL_INLINE Vec<T> ShiftRight(Vec<T> v) {
    static_assert(sizeof(T) > 1);
    return {v.raw >> Count};
}

// ---- comparisons and masks ------------------------------------------------------------------------------------------

template <class T>
PXL_INLINE Mask<T> operator==(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw == b.raw)};
}
template <class T>
PXL_INLINE Mask<T> operator<(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw < b.raw)};
}
template <class T>
PXL_INLINE Mask<T> operator>(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw > b.raw)};
}
template <class T>
PXL_INLINE Mask<T> operator<=(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw <= b.raw)};
}

template <class T>
PXL_INLINE Vec<T> IfThenElseZero(Mask<T> mask, Vec<T> a) {
    return fromInts<T>(ints(mask) & ints(a));
}

} // namespace pxl::PXL_TARGET
