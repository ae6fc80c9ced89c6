// CCreateContext: what a frame passes on while it creates its view.
#pragma once

#include "../core/CObject.h"

class CDocument;
class CFrameWnd;
class CView;

/// What a frame hands to the windows that it makes inside itself; every member may be null.
struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr; ///< The view to create; null for none.
    CDocument* m_pCurrentDoc = nullptr;
    CView* m_pLastView = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};
