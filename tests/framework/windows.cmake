# The tests of windows, controls, frames and dialogs; included by CMakeLists.txt.
list(APPEND framework_window_tests
    CommandLineTest.cpp
    CommandTest.cpp
    ControlsTest.cpp
    DialogTest.cpp
    FrameTest.cpp
    MessageLoopTest.cpp
    MessageMapTest.cpp
    ProfileTest.cpp
    WindowLifeTest.cpp
    WindowPlacementTest.cpp
    windows_tests.rc)

# A program that has only an application object; its exit code is the test's verdict.
add_executable(framework_entry_point WIN32 EntryPointProgram.cpp)
target_link_libraries(framework_entry_point PRIVATE kyframework_main)
add_test(NAME windows.framework_entry_point COMMAND framework_entry_point -quiet "some file.csv")
set_tests_properties(windows.framework_entry_point PROPERTIES TIMEOUT 60 RESOURCE_LOCK desktop)
