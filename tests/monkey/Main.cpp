// The monkey: monkey [SEED] [EVENTS]
//
// Plays EVENTS valid events and as many raw messages on the windows of the zoo, in turns, and looks at the invariants
// in between. The same seed plays the same run. Exit code 0 when nothing went wrong.
#include "Hands.h"
#include "Invariants.h"
#include "LoopBreaker.h"
#include "Noise.h"
#include "Sentinel.h"
#include "Zoo.h"

#include "../../framework/core/HandleCounts.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace {

constexpr int EventsPerTurn = 100;
constexpr int EventsPerCheck = 25;
constexpr int TurnsPerLayoutCheck = 10;
/// Handles that may be left at the end: what the system keeps for its own dialogs and menus is not ours.
constexpr long HandleSlack = 8;

/// Nothing is to come as far as the user: boxes are answered, and an exception that ends in the message loop is a
/// fault.
class MonkeyApp : public CWinApp {
public:
    MonkeyApp() : CWinApp(L"Monkey") {
        wchar_t folder[MAX_PATH] = L"";
        ::GetTempPath(MAX_PATH, folder);
        m_profile.Format(L"%smonkey%lu.ini", folder, ::GetCurrentProcessId());
        m_pszProfileName = _wcsdup(m_profile);
    }
    void RemoveProfile() { ::DeleteFile(m_profile); }
    int DoMessageBox(LPCTSTR, UINT, UINT) override { return IDOK; }
    LRESULT ProcessWndProcException(CException* e, const MSG*) override {
        TCHAR text[256] = L"";
        e->GetErrorMessage(text, 256, nullptr);
        char narrow[256];
        std::snprintf(narrow, sizeof(narrow), "an exception ended in the message loop: %ls", text);
        sentinel::Fail(narrow);
    }

private:
    CString m_profile;
};

MonkeyApp theApplication;

using handlecounts::Kind;

std::map<Kind, long> LiveHandles() {
    std::map<Kind, long> counts;
    for (const Kind kind : {Kind::GdiObject, Kind::DeviceContext, Kind::Window, Kind::Menu})
        counts[kind] = handlecounts::Live(kind);
    return counts;
}

void CheckHandles(const std::map<Kind, long>& before) {
    const std::map<Kind, long> after = LiveHandles();
    for (const auto& [kind, count] : before) {
        if (after.at(kind) > count + HandleSlack)
            sentinel::Fail("broken: handles of kind " + std::to_string(static_cast<int>(kind)) + " went from " +
                           std::to_string(count) + " to " + std::to_string(after.at(kind)));
    }
}

void Play(std::uint64_t seed, int events) {
    Dice dice(seed);
    LoopBreaker breaker(seed);
    { // what is made once per process
        Zoo zoo(dice);
        Pump();
    }
    const std::map<Kind, long> handles = LiveHandles();
    const DWORD start = ::GetTickCount();
    Heard heard;
    {
        Zoo zoo(dice);
        Hands hands(dice, zoo);
        Noise noise(dice, zoo);
        int played = 0, sent = 0, turn = 0;
        while (played < events || sent < events) {
            zoo.Tidy();
            zoo.AllowMischief(turn % 2 == 1);
            for (int i = 0; i < EventsPerTurn && played < events; ++i, ++played) {
                dice.StartEvent(2 * static_cast<std::uint64_t>(played));
                hands.Act();
                if (i % EventsPerCheck == 0) {
                    zoo.Upkeep();
                    invariants::Check(zoo, false);
                }
            }
            hands.Rest();
            zoo.AllowMischief(false);
            zoo.Upkeep();
            invariants::Check(zoo, true);
            zoo.Tidy();
            for (int i = 0; i < EventsPerTurn && sent < events; ++i, ++sent) {
                dice.StartEvent(2 * static_cast<std::uint64_t>(sent) + 1);
                noise.Act();
                if (i % EventsPerCheck == 0) {
                    zoo.Upkeep();
                    invariants::Check(zoo, false);
                }
            }
            hands.Rest();
            zoo.Upkeep();
            invariants::Check(zoo, true);
            if (++turn % TurnsPerLayoutCheck == 0) {
                invariants::CheckLayouts(zoo);
                sentinel::CheckHeaps();
            }
        }
        heard = zoo.WhatYardHeard();
    }
    Pump();
    CheckHandles(handles);
    sentinel::CheckHeaps();
    const sentinel::StackUse stack = sentinel::StackOfThread();
    std::printf(
        "monkey: seed %llu, %d events, %d raw messages, %d modal loops closed; an owner heard %d notifications and "
        "%d dragged values and answered %d with mischief; at most %zu of %zu KB of stack; %.1f s: nothing went wrong\n",
        static_cast<unsigned long long>(seed), events, events, breaker.LoopsEnded(), heard.notifications,
        heard.draggedValues, heard.mischief, stack.most / 1024, stack.room / 1024, (::GetTickCount() - start) / 1000.0);
}

} // namespace

int main(int argc, char** argv) {
    const int checkedRun = sentinel::RunWithHeapChecks();
    if (checkedRun != -1)
        return checkedRun;
    const std::uint64_t seed = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
    const int events = argc > 2 ? std::atoi(argv[2]) : 1000;
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    sentinel::Watch("tools/monkey " + std::to_string(seed) + " " + std::to_string(events));
    std::printf("monkey: heap checks are %s\n", sentinel::HasHeapChecks() ? "on" : "off");
    Play(seed, events);
    theApplication.RemoveProfile();
    return 0;
}
