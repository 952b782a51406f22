# Tests of the product that run on every platform.
set(settings_test_sources
  BadPreferencesTests.cpp
  BandEditTests.cpp
  LifecycleTests.cpp
  LinksTests.cpp
  LocalizedTests.cpp
  Pane.cpp
  PresetListTests.cpp
  PresetPane.cpp
  PresetPanelTests.cpp
  SBEqualizerBackgroundViewTests.cpp
  SliderCellTests.cpp
  SpecifiersTests.cpp
  SwitchTests.cpp
  UIImageEqualizerTests.cpp
  invertPixelsTests.cpp
  store/ExchangeTests.cpp
  store/preferencesTests.cpp
  store/presetsTests.cpp
  ../../support/Alike.cpp
  ../../support/Images.cpp
)
list(TRANSFORM settings_test_sources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
# The tests' own language, stored next to the pane's in the test bundle.
set(settings_test_resources ${CMAKE_CURRENT_LIST_DIR}/resources)
# The folder with the files that each platform writes.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/store/ExchangeTests.cpp PROPERTIES
  COMPILE_DEFINITIONS WRITTEN_FILES="${CMAKE_CURRENT_LIST_DIR}/store"
)
