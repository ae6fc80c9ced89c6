// PerThread.h - one object per thread, made when the thread first asks for it and destroyed when the thread ends.
#pragma once

#include "Platform.h"

/// Unlike a thread_local object it can also be asked for while the program's statics are being destroyed: it is then
/// made anew.
template <class T>
class PerThread {
public:
    using Make = T* (*)();

    explicit PerThread(Make make) : m_make(make), m_slot(::FlsAlloc(&Destroy)) {}

    T& Get() {
        void* object = ::FlsGetValue(m_slot);
        if (!object) {
            object = m_make();
            ::FlsSetValue(m_slot, object);
        }
        return *static_cast<T*>(object);
    }

private:
    static void WINAPI Destroy(void* object) { delete static_cast<T*>(object); }

    Make m_make;
    DWORD m_slot;
};
