#pragma once

#include <dlfcn.h>
#include <string>

namespace test {

/// What a program calls by this name when the function of the tests does not stand before it: the
/// sanitizer's, if there is one, which knows it by another name, too.
template <class Function>
Function* nextFunction(const std::string& name)
{
    void* found = ::dlsym(RTLD_DEFAULT, ("__interceptor_" + name).c_str());
    return reinterpret_cast<Function*>(found ? found : ::dlsym(RTLD_NEXT, name.c_str()));
}

} // namespace test
