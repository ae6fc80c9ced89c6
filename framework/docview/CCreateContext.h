// CCreateContext: what a frame passes on while it creates its view.
#pragma once

#include "../core/CObject.h"

class CDocument;
class CFrameWnd;
class CView;

struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr; ///< The view to create; null for none.
    CDocument* m_pCurrentDoc = nullptr;
    CView* m_pLastView = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};
