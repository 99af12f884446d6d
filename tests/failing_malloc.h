// Watches the library's memory and makes malloc fail: the tests are linked with --wrap for malloc and free, so every allocation of
// the library passes here.
#pragma once

// While it lives, calls of malloc are counted, in all threads, and the nth of them (1: the next one; 0: none) returns null.
class FailingMalloc {
public:
    explicit FailingMalloc(int nth = 0);
    ~FailingMalloc();
    FailingMalloc(const FailingMalloc&) = delete;
    FailingMalloc& operator=(const FailingMalloc&) = delete;

    int calls() const;
    int unreleased() const; // blocks that were allocated since, less those that were released
};
