# The application's settings, in the registry or an INI file.
list(APPEND kyframework_profile_SOURCES
    profile/CWinAppProfile.cpp
    profile/IniStore.cpp
    profile/RegistryStore.cpp)
