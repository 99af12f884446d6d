// Calls every exported function of the shared library once with generated arguments and prints a line for each: name, status,
// and a checksum of the memory around its operands. Builds for different platforms print the same.
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

#include "generic/call.h"
#include "generic/guarded.h"
#include "generic/member.h"
#include "pxlcore.h"
#include "pxli.h"

namespace {

// FNV-1a.
class Checksum {
public:
    void add(const void* data, size_t size) {
        const auto* bytes = static_cast<const uint8_t*>(data);
        for (size_t i = 0; i < size; ++i) state_ = (state_ ^ bytes[i]) * 1099511628211u;
    }
    void add(std::string_view text) { add(text.data(), text.size()); }
    uint64_t value() const { return state_; }

private:
    uint64_t state_ = 14695981039346656037u;
};

void print(std::string_view name, int status, const Checksum& sum) {
    std::printf("%.*s %d %08x%08x\n", static_cast<int>(name.size()), name.data(), status,
                static_cast<unsigned>(sum.value() >> 32), static_cast<unsigned>(sum.value()));
}

void printVersion() {
    const LibVersion* v = pxliGetLibVersion();
    Checksum sum;
    for (const int32_t number : {v->major, v->minor, v->buildMajor, v->buildNumber}) sum.add(&number, sizeof number);
    sum.add(v->cpuCode, sizeof v->cpuCode);
    for (const char* text : {v->libraryName, v->versionText, v->buildDate}) sum.add(std::string_view(text));
    print("pxliGetLibVersion", 0, sum);
}

// Every image is written from end to end and freed.
void printAllocator(const generic::Allocator& allocator) {
    int step = 0;
    auto* image = static_cast<uint8_t*>(allocator.allocate(37, 5, &step));
    Checksum sum;
    sum.add(&step, sizeof step);
    for (int i = 0; image && i < 5 * step; ++i) image[i] = static_cast<uint8_t>(i);
    print(allocator.name, image ? static_cast<int>(reinterpret_cast<uintptr_t>(image) % 32) : -1, sum);
    pxliFree(image);
}

// A call that is accepted, over memory that depends on the member's name alone.
void printMember(const generic::Member& member, const std::vector<generic::Guarded>& memory) {
    Checksum seed;
    seed.add(member.name);
    generic::Random random(seed.value());
    std::vector<uint8_t*> pointers;
    for (const generic::Guarded& g : memory) pointers.push_back(g.begin());
    int32_t status = -1;
    Checksum sum;
    for (int attempt = 0; status < 0 && attempt < 100; ++attempt) {
        const generic::Call call = randomCall(member, random);
        for (int i = 0; i < call.memories; ++i) fillMemory(call, i, pointers[static_cast<size_t>(i)], random);
        status = member.call(call.bind(pointers).data());
        sum = Checksum();
        for (int i = 0; i < call.memories; ++i) {
            const generic::Reach window = call.window(i);
            sum.add(pointers[static_cast<size_t>(i)] + window.low, static_cast<size_t>(window.length()));
        }
    }
    print(member.name, status, sum);
}

} // namespace

int main() {
    pxlcoreSetNumThreads(2);
    printVersion();
    for (const generic::Allocator& allocator : generic::allocators()) printAllocator(allocator);
    const std::vector<generic::Guarded> memory(generic::Call::maxMemories);
    for (const generic::Member& member : generic::members()) printMember(member, memory);
    return 0;
}
