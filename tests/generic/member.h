// The tables of all members that work on regions and of the allocators, generated from the registry, for tests that run over
// every export.
#pragma once

#include <algorithm>
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
    Integer, // offsets, hints, modes
    Real,
    Element, // one element value
    Values,  // array of element values
    Order,   // array of channel indices
    Table,   // kernel coefficients
    Result,  // a value returned through a pointer
    Buffer,  // scratch of the caller
};

struct Param {
    Role role;
    std::string_view name;
    std::string_view type;  // element type code of what it points at; empty for others
    int elements;           // elements per pixel
    int channels;           // elements processed per pixel
    int planes;             // planes, 0 for interleaved images
    int count;              // entries of Values and Order
    std::string_view bound; // the size argument that bounds an image
};

struct Member : reference::Member {
    const Param* params;
    int count;
    int32_t (*call)(const reference::Arg*);
    std::string_view targets; // the names of those that it is compiled for, with spaces between

    std::span<const Param> parameters() const { return {params, static_cast<size_t>(count)}; }
    bool runsOn(std::string_view target) const {
        return (' ' + std::string(targets) + ' ').find(' ' + std::string(target) + ' ') != std::string::npos;
    }
    // The position of the parameter of that name, or -1.
    int find(std::string_view parameter) const {
        for (int i = 0; i < count; ++i)
            if (params[i].name == parameter) return i;
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
inline bool worksOnImages(const Member& member) {
    return std::ranges::any_of(member.parameters(), [](const Param& p) { return isImage(p.role); });
}
inline bool isWritten(Role role) { return role == Role::Destination || role == Role::InPlace || role == Role::Inside; }

int elementBytes(std::string_view type);

} // namespace generic
