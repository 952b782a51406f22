# A locale with a decimal comma, generated because the machine may not have one.
set(locales ${CMAKE_CURRENT_BINARY_DIR}/locales)
set(german ${locales}/de_DE.UTF-8)
add_custom_command(OUTPUT ${german}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${locales}
  COMMAND localedef -i de_DE -f UTF-8 ${german}
)
add_custom_target(locales DEPENDS ${german})
