# A folder is a target: every source file that stands in it, and what it may include from.
#
# panel_folder(NAME [SHARED] LINK targets...)
function(panel_folder name)
  cmake_parse_arguments(ARG "SHARED" "" "LINK" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
  set(kind STATIC)
  if(ARG_SHARED)
    set(kind SHARED)
  endif()
  add_library(${name} ${kind} ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINK})
endfunction()

# Compiles a table of the folder's words, FILE.ts.
#
# compile_words(FILE OUT)
function(compile_words file out)
  get_filename_component(name ${out} NAME)
  get_filename_component(home ${out} DIRECTORY)
  add_custom_command(
    OUTPUT ${out}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${home}
    COMMAND Qt6::lrelease -silent ${CMAKE_CURRENT_SOURCE_DIR}/${file} -qm ${out}
    DEPENDS ${file}
    COMMENT "Words: ${name}"
    VERBATIM)
endfunction()

# Compiles the folder's translations/*.ts into the target, as ":/translations/<name>.qm".
#
# panel_translations(TARGET)
function(panel_translations target)
  file(GLOB tables RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS translations/*.ts)
  set(compiled)
  foreach(table IN LISTS tables)
    get_filename_component(name ${table} NAME_WLE)
    set(out ${CMAKE_CURRENT_BINARY_DIR}/translations/${name}.qm)
    compile_words(${table} ${out})
    list(APPEND compiled ${out})
  endforeach()
  string(MAKE_C_IDENTIFIER ${target} resource)
  qt_add_resources(${target} ${resource}_translations PREFIX / BASE ${CMAKE_CURRENT_BINARY_DIR}
                   FILES ${compiled})
endfunction()
