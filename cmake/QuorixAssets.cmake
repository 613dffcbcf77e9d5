# quorix_stage_assets(TARGET): puts everything of assets/ and the font files beside the target's executable, anew
# whenever one of them has changed. All programs lie in one folder, so one copy serves them all: two at a time would
# get in each other's way.
function(quorix_stage_assets target)
  if(NOT TARGET quorix_assets)
    quorix_make_assets_target(${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endif()
  add_dependencies(${target} quorix_assets)
endfunction()

# The target quorix_assets, which copies to FOLDER.
function(quorix_make_assets_target folder)
  file(GLOB_RECURSE assets CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/*)
  set(fonts "")
  if(QUORIX_FONT_DIR)
    list(TRANSFORM QUORIX_FONT_FILES PREPEND ${QUORIX_FONT_DIR}/ OUTPUT_VARIABLE fonts)
  endif()
  set(stamp ${CMAKE_BINARY_DIR}/quorix_assets.stamp)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/assets ${folder}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}/fonts
    COMMAND ${CMAKE_COMMAND} -E copy ${fonts} ${folder}/fonts
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${assets} ${fonts}
    COMMENT "Staging assets" VERBATIM)
  add_custom_target(quorix_assets DEPENDS ${stamp})
endfunction()
