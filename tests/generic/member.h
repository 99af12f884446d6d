// The tables of all members that work on regions and of the allocators, generated from the registry, for tests that run over
// every export. Tests know what a parameter is by its role and meaning, and what is particular to a family by its facts.
#pragma once

#include <span>
#include <string>

#include "reference/reference.h"

namespace generic {

enum class Role {
    Source,      // image that is read
    Destination, // image that is written
    InPlace,     // image that is both
    Inside,      // region inside a larger buffer; what is written lies around it
    Mask,
    Step,
    Size,
    Point,
    Rect,        // by value
    RectPointer, // by address
    Integer,     // offsets, hints, modes
    Real,
    Element,  // one element value
    Values,   // array of values, one per channel
    Order,    // array of channel indices
    Table,    // array that is read, or one per channel
    Result,   // the same, written
    InOut,    // array that is both
    State,    // prepared object
    NewState, // address of a prepared object to be made
    Buffer,   // scratch of the caller
};

enum class Meaning {
    None,
    Outer, // size of a destination that holds a source and a border around it
    BorderTop,
    BorderLeft,
    WindowSize,
    WindowAnchor,
    Taps,   // of a linear filter
    Levels, // in ascending order, or nearly so
    ScaleFactor,
    Divisor,
    Shift,     // by so many bits
    BitOffset, // of the first pixel of every row
    RangeLow,
    RangeHigh,
    Count, // entries of a counted array
};

// What is read around a region. Sizes and anchors are positions of parameters.
struct Window {
    enum Kind { None, Sized, Row, Column, Code, Radius, Fixed };
    Kind kind = None;
    int size = -1;
    int anchor = -1;
    bool mirrored = false; // reaches anchor columns to the right; the anchor may lie anywhere
    int sides[4] = {};     // left, above, right, below
};

enum class Shape {
    Plain,      // of a size or a rectangle
    Transposed, // height x width of it
    Joined,     // a + b - 1
    Moved,      // |a - b| + 1: the places of one inside the other
    OwnWidth,   // a number, and the height of a size
    Block,      // 8x8
};

struct Region {
    Shape shape = Shape::Plain;
    int a = -1, b = -1; // positions of parameters
    Window window = {};
};

// Entries of an array: a fixed number; or one number or the product of two, or the area of a size, then 2 to that power, or
// one less. Below 0 it is not known.
struct Count {
    int fixed = -1;
    int a = -1, b = -1;
    bool power = false, less = false;
};

// The numbers that an argument may be.
struct Valid {
    bool limited = false;
    double low = 0, high = 0;
    uint64_t among = 0; // a bit for each, where not all between are valid
};

struct Param {
    Role role;
    Meaning meaning;
    std::string_view name;
    std::string_view type; // element type code of what it points at; empty for others
    int elements;          // elements per pixel
    int channels;          // elements processed per pixel
    int planes;            // planes or arrays behind an array of pointers, 0 where it points at elements itself
    Region region;         // of images
    Count count;           // of arrays
    Valid valid;
};

enum class Rows {
    Any,          // steps may be anything
    WrittenApart, // rows that are written do not overlap
    Apart,        // neither do those that are read; steps go forward
};

struct Facts {
    Rows rows;
    bool wholeElementSteps; // what is over is dropped
    bool mayOverlap;        // operands in part, with the result of the plain loop
    bool square;            // other regions are refused
    int large[2];           // regions that are large in both directions, up to this size, take ways of their own
    int windows[4][2];      // sizes beside which the formula changes
    bool runningSums;       // what an infinity does to a sum stays in it
};

struct Member : reference::Member {
    const Param* params;
    int count;
    int32_t (*call)(const reference::Arg*);
    std::string_view targets; // the names of those that it is compiled for, with spaces between
    bool takesMemory;         // and may fail for want of it
    Facts facts;

    std::span<const Param> parameters() const { return {params, static_cast<size_t>(count)}; }
    bool runsOn(std::string_view target) const {
        return (' ' + std::string(targets) + ' ').find(' ' + std::string(target) + ' ') != std::string::npos;
    }
    // The position of the step of an image.
    int stepOf(int image) const {
        while (params[image].role != Role::Step) ++image;
        return image;
    }
    // The position of the parameter with that meaning, or -1.
    int find(Meaning meaning) const {
        for (int i = 0; i < count; ++i)
            if (params[i].meaning == meaning) return i;
        return -1;
    }
};

std::span<const Member> members();

struct Allocator {
    std::string_view name;
    void* (*allocate)(int width, int height, int* stepBytes);
};

std::span<const Allocator> allocators();

inline bool isImage(Role role) {
    return role == Role::Source || role == Role::Destination || role == Role::InPlace || role == Role::Inside ||
           role == Role::Mask;
}
// What lies in memory of its own and is no image; a complex value is passed by its address, too.
inline bool isArray(const Param& p) {
    return p.role == Role::Values || p.role == Role::Order || p.role == Role::Table || p.role == Role::Result ||
           p.role == Role::InOut || p.role == Role::Rect || p.role == Role::RectPointer || p.role == Role::Buffer ||
           (p.role == Role::Element && p.type.ends_with("c"));
}
inline bool isWritten(Role role) {
    return role == Role::Destination || role == Role::InPlace || role == Role::Inside || role == Role::Result ||
           role == Role::InOut;
}

int elementBytes(std::string_view type);

} // namespace generic
