// References to counted objects that end with their scope: boost::intrusive_ptr for everything that CCmdTarget counts.
// A handler that calls hooks of the host holds one on each object that it needs afterwards.
#pragma once

#include <afxwin.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

inline void intrusive_ptr_add_ref(CCmdTarget* object) { object->InternalAddRef(); }
inline void intrusive_ptr_release(CCmdTarget* object) { object->InternalRelease(); }
