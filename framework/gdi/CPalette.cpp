// CPalette.cpp - logical palettes.
#include "gdi/CPalette.h"

IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

int CPalette::GetEntryCount() const {
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}
