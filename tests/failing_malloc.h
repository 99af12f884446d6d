// Makes malloc fail: the tests are linked with --wrap=malloc, so every allocation of the library passes here.
#pragma once

#include <cstddef>

// While it lives, the nth call of malloc (1: the next one) and all after it return null.
class FailingMalloc {
public:
    explicit FailingMalloc(int nth);
    ~FailingMalloc();
    FailingMalloc(const FailingMalloc&) = delete;
    FailingMalloc& operator=(const FailingMalloc&) = delete;
};
