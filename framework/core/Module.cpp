// Module.cpp - the module handles from which the application's code and resources come.
#include "core/Module.h"

#include <algorithm>
#include <vector>

namespace {

struct ModuleState {
    HINSTANCE instance = nullptr;
    HINSTANCE resources = nullptr;
    std::vector<HINSTANCE> added;
};

ModuleState& State() {
    static ModuleState state;
    return state;
}

} // namespace

HINSTANCE AfxGetInstanceHandle() { return State().instance ? State().instance : ::GetModuleHandleW(nullptr); }

void AfxSetInstanceHandle(HINSTANCE instance) { State().instance = instance; }

HINSTANCE AfxGetResourceHandle() { return State().resources ? State().resources : AfxGetInstanceHandle(); }

void AfxSetResourceHandle(HINSTANCE module) { State().resources = module; }

void AfxAddResourceModule(HINSTANCE module) { State().added.push_back(module); }

void AfxRemoveResourceModule(HINSTANCE module) {
    std::vector<HINSTANCE>& added = State().added;
    added.erase(std::remove(added.begin(), added.end(), module), added.end());
}

HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type) {
    const HINSTANCE first = AfxGetResourceHandle();
    if (::FindResourceW(first, name, type))
        return first;
    const std::vector<HINSTANCE>& added = State().added;
    const auto found = std::find_if(added.rbegin(), added.rend(),
                                    [=](HINSTANCE module) { return ::FindResourceW(module, name, type) != nullptr; });
    return found != added.rend() ? *found : first;
}

int AfxLoadString(UINT id, LPTSTR buffer, UINT bufferLength) {
    if (!buffer || bufferLength == 0)
        return 0;
    buffer[0] = L'\0';
    // The system keeps string resources in blocks of sixteen.
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE((id >> 4) + 1), RT_STRING);
    return ::LoadStringW(module, id, buffer, static_cast<int>(bufferLength));
}
