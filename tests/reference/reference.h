// The plain scalar definitions that the library is measured against.
//
// A reference sees one call as the caller made it: the parts of the function's name and the C arguments in the order of the
// prototype. It shares no code with the library: it checks the arguments, returns the status, and writes the destination
// element by element.
#pragma once

#include <cstdint>
#include <string_view>

namespace reference {

// One C argument. Which member holds it follows from the prototype.
struct Arg {
    const void* ptr =
        nullptr;       // images, arrays of plane pointers, value arrays, channel orders (destinations: cast away const)
    int64_t num = 0;   // integers, enumerations and integer element values
    double real = 0;   // 32f and 64f scalars
    int32_t width = 0; // ImageSize; the x of an ImagePoint
    int32_t height = 0; // ImageSize; the y of an ImagePoint
};

// The parts of an exported name: pxliConvert_8u32f_C3R is {family "Convert", src "8u", dst "32f", layout "C3", mode "R"};
// with one type code src and dst are equal. Family includes any variant: "Div_Round".
struct Member {
    std::string_view name;
    std::string_view family;
    std::string_view src;
    std::string_view dst;
    std::string_view
        layout; // "C1", "C3", "AC4", "C3P3", "C3C4", "C3C" (the channel-of-interest copies: C3CR is layout "C3C", mode "R") ...
    std::string_view mode; // "R", "IR", "MR", "RSfs", "IRSfs"
};

using Function = int32_t (*)(const Member&, const Arg*);

// Makes a function the reference of a family, at the bottom of the file that defines it.
class Registered {
public:
    Registered(std::string_view family, Function function) : family_(family), function_(function), next_(first_) {
        first_ = this;
    }
    Registered(const Registered&) = delete;
    Registered& operator=(const Registered&) = delete;

    // The reference of a family, or null where there is none.
    static Function find(std::string_view family) {
        for (const Registered* r = first_; r; r = r->next_)
            if (r->family_ == family) return r->function_;
        return nullptr;
    }

private:
    static inline const Registered* first_ = nullptr;

    std::string_view family_;
    Function function_;
    const Registered* next_;
};

inline Function find(std::string_view family) { return Registered::find(family); }

} // namespace reference
