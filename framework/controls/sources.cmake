# The standard controls.
list(APPEND kyframework_controls_SOURCES
    controls/CToolTipCtrl.cpp
    controls/Controls.cpp)
