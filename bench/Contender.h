// What the grid benchmark compares: windows that show the same rows.
#pragma once

#include "BenchPicture.h"

#include <afxwin.h>

#include <memory>

/// A visible window of the benchmark's size in which the same rows are shown. Every operation returns when its result
/// is on the screen, as far as the program can tell.
class Contender {
public:
    virtual ~Contender() = default;

    /// The window that shows the rows.
    virtual CWnd& Window() = 0;
    /// Brings the row to the top, untimed.
    virtual void GoToRow(int row) = 0;
    /// One page further down, painted.
    virtual void PageDown() = 0;
    /// What one move of the mouse during a drag in a cell costs; `step` alternates the place.
    virtual void MoveOfDrag(int step) = 0;
    virtual void BeginDrag() {}
    virtual void EndDrag() {}
    /// Finds the cell under the point (client coordinates), if the contender has such a thing.
    virtual void HitTest(CPoint) {}
    /// Fits the first column to its texts, if the contender can.
    virtual void BestFit() {}
    /// Changes the number of one of `RecordRows` rows and asks for a redraw, as a host does for each change. Not
    /// painted.
    virtual void Update(int n) = 0;
    /// The cell of a plot column without its grid lines, client coordinates; row 0 is the one shown at the top.
    virtual CRect BarRect(int visibleRow, int bar) = 0;

    /// Draws everything anew.
    void Repaint();
    /// Paints what is damaged and hands it to the screen.
    void Show();
    /// Dispatches what waits in the queue: what a control has put off to a timer counts as well.
    static void Pump();

    /// The rows of the contenders that are compared in everything but scrolling.
    static constexpr int RecordRows = 1000;

protected:
    /// The row in which a drag takes place, counted from the top one.
    static constexpr int DragRow = 5;
};

/// The system's list view with that many rows, owner data, double buffering and the plots drawn in custom draw.
std::unique_ptr<Contender> MakeListViewContender(int rows, const benchpicture::Picture& picture = {});
/// A loop of GDI calls into a bitmap in memory, which is then copied to the window.
/// @param headerHeight  pixels above the first row, as in the grid
std::unique_ptr<Contender> MakeBareContender(int headerHeight, const benchpicture::Picture& picture = {});
