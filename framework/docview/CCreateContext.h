/// @file
/// CCreateContext: what a frame passes on while it creates its view.
#pragma once

#include "../core/CObject.h"

class CDocument;
class CFrameWnd;
class CView;

/// What a frame hands to the windows that it makes inside itself; every member may be null. It lives during the
/// creation only.
/// @ingroup framework_frames
struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr; ///< The view to create; null for none.
    CDocument* m_pCurrentDoc = nullptr;       ///< The document that the view shows; the framework only passes it on.
    CView* m_pLastView = nullptr;             ///< A view that the new one resembles.
    CFrameWnd* m_pCurrentFrame = nullptr;     ///< A frame that the new one resembles.
};
