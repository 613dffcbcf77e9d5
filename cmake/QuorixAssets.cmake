# quorix_stage_assets(TARGET): puts everything of assets/ and the font files beside the target's executable, anew
# whenever one of them has changed.
function(quorix_stage_assets target)
  file(GLOB_RECURSE assets CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/*)
  set(fonts "")
  if(QUORIX_FONT_DIR)
    list(TRANSFORM QUORIX_FONT_FILES PREPEND ${QUORIX_FONT_DIR}/ OUTPUT_VARIABLE fonts)
  endif()
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}_assets.stamp)
  set(folder ${CMAKE_CURRENT_BINARY_DIR})
  if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    set(folder ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endif()
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/assets ${folder}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}/fonts
    COMMAND ${CMAKE_COMMAND} -E copy ${fonts} ${folder}/fonts
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${assets} ${fonts}
    COMMENT "Staging assets for ${target}" VERBATIM)
  add_custom_target(${target}_assets DEPENDS ${stamp})
  add_dependencies(${target} ${target}_assets)
endfunction()
