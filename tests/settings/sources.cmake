# The behavior of the product, tested over whatever platform there is.
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
  ../support/Alike.cpp
  ../support/Images.cpp
)
list(TRANSFORM settings_test_sources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
# A language of the tests' own, which lies beside the pane's in the bundle that they run with.
set(settings_test_resources ${CMAKE_CURRENT_LIST_DIR}/resources)
# Where the files are that each platform writes.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/store/ExchangeTests.cpp PROPERTIES
  COMPILE_DEFINITIONS WRITTEN_FILES="${CMAKE_CURRENT_LIST_DIR}/store"
)
