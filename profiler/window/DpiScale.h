// Sizes at the screen's resolution.
#pragma once

/// `pixels` at 96 DPI as pixels at the system's DPI.
int ScaledToDpi(int pixels);
