// The windows that the monkey plays with: Column Profiler as it is, and a yard with the other classes of ours, whose
// owner does what owners may do at the worst moment.
#pragma once

#include "Dice.h"

#include "window/ProfilerFrame.h"

#include <cstdint>
#include <memory>
#include <vector>

class Yard;

/// What the owner of the yard's grids heard in a run, and how often it answered with mischief.
struct Heard {
    int notifications = 0;
    int draggedValues = 0;
    int mischief = 0;
};

class Zoo {
public:
    explicit Zoo(Dice& dice);
    ~Zoo();
    Zoo(const Zoo&) = delete;
    Zoo& operator=(const Zoo&) = delete;

    /// Makes anew what has been destroyed, and removes what only stands in the way.
    void Upkeep();
    /// Puts windows back to where there is something to see of them.
    void Tidy();
    /// Ends the life of Column Profiler as its close button does, and begins a new one in another language.
    void RestartProfiler();
    void OpenShipped();
    /// Files are read in a thread of their own; waiting for it makes a run the same each time.
    void AwaitReading() const;
    /// Whether the owner of the yard's grids may do mischief in what they tell it.
    void AllowMischief(bool allow);

    const Heard& WhatYardHeard() const { return m_heard; }

    ProfilerFrame* Profiler() const; ///< null when its window is gone
    std::vector<CXTPReportControl*> Grids() const;
    /// Every window that belongs to an object of ours.
    std::vector<HWND> Windows() const;

private:
    std::vector<std::uintptr_t> PlaceInZoo(HWND window) const;
    void CreateProfiler();
    void CreateYard();
    void CreateDocuments();
    void CreateModelessDialog();

    Dice& m_dice;
    Heard m_heard;
    HWND m_profiler = nullptr, m_yard = nullptr, m_documents = nullptr;
    std::unique_ptr<CDialog> m_dialog;
    std::unique_ptr<CXTPReportControl> m_dialogGrid;
};

/// Whether the window's procedure is the system's beneath ours, as in edits and buttons.
bool IsSystemControl(HWND window);
