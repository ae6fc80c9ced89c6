// Raw messages with random parameters, as a broken or hostile program might send them to our windows.
#pragma once

#include "Zoo.h"

/// Memory that messages may point to, filled anew for each.
struct NoiseMemory;

class Noise {
public:
    Noise(Dice& dice, Zoo& zoo);
    ~Noise();

    /// One message to one window, and what it leaves in the queue.
    void Act();

private:
    UINT ChooseMessage();
    WPARAM RandomWord();
    HWND RandomWindow();
    void FillPointers(UINT message, bool isSystemControl, WPARAM& wParam, LPARAM& lParam);

    Dice& m_dice;
    Zoo& m_zoo;
    std::unique_ptr<NoiseMemory> m_memory;
};
