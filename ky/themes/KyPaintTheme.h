/// @file
/// The library's theme enumeration.
#pragma once

/// The visual themes that an application offers. Other values may arrive from stored or sent numbers; every function
/// of `Themes` says what it makes of them. The profile holds the name of the member, users see the name beside it.
/// @ingroup ky_themes
enum class KyPaintTheme : int {
    Office2000 = 0,       ///< "Office 2000"
    OfficeXP = 1,         ///< "Office XP"
    Office2003 = 2,       ///< "Office 2003"
    Office2007Aqua = 3,   ///< "Office 2007 Aqua"
    Office2007Black = 4,  ///< "Office 2007 Black"
    Office2007Blue = 5,   ///< "Office 2007 Blue"
    Office2007Silver = 6, ///< "Office 2007 Silver"
    Office2010Black = 7,  ///< "Office 2010 Black"
    Office2010Blue = 8,   ///< "Office 2010 Blue"
    Office2010Silver = 9, ///< "Office 2010 Silver"
    Office2013 = 10,      ///< "Office 2013"
    Windows7Blue = 11     ///< "Windows 7", the default wherever no theme can be determined
};
