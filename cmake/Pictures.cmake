# Compiles the vector pictures into a target as resources below ":/", cards and pictures apart.
function(velmora_pictures target)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/assets/cards/*.svg
       ${CMAKE_SOURCE_DIR}/assets/pictures/*.svg)
  qt_add_resources(${target} velmora_pictures PREFIX / BASE ${CMAKE_SOURCE_DIR}/assets FILES ${files})
endfunction()
