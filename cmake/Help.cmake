# Builds the help file beside the program from the pages under assets/help.
find_program(HELP_GENERATOR qhelpgenerator REQUIRED HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS}
             ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} /usr/lib/qt6/libexec /usr/lib/qt6/bin)
set(help_file ${CMAKE_BINARY_DIR}/VELMORA.HLP)
file(GLOB_RECURSE help_pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/assets/help/*)
add_custom_command(
  OUTPUT ${help_file}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${HELP_GENERATOR}
          ${CMAKE_SOURCE_DIR}/assets/help/velmora.qhp -o ${help_file}
  DEPENDS ${help_pages}
  VERBATIM)
add_custom_target(velmora_help ALL DEPENDS ${help_file})
