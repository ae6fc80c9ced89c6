// The library's theme enumeration.
#pragma once

/// The visual themes that an application offers. Other values may arrive from stored or sent numbers; every function
/// of `Themes` says what it makes of them.
enum class KyPaintTheme : int {
    Office2000 = 0,
    OfficeXP = 1,
    Office2003 = 2,
    Office2007Aqua = 3,
    Office2007Black = 4,
    Office2007Blue = 5,
    Office2007Silver = 6,
    Office2010Black = 7,
    Office2010Blue = 8,
    Office2010Silver = 9,
    Office2013 = 10,
    Windows7Blue = 11 ///< the default wherever no theme can be determined
};
