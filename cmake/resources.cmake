# One resource script for both systems: an object that the linker takes into the Windows library, or
# an image in the .res format that the Linux library carries inside an assembler file.

# An image is the same from either; an object is for the width of the build.
if(WIN32)
  set(STMDATA_WINDRES ${CMAKE_RC_COMPILER})
else()
  find_program(STMDATA_WINDRES NAMES i686-w64-mingw32-windres x86_64-w64-mingw32-windres REQUIRED)
endif()

# Defines the interface library `target` that brings the resources into whatever links it.
function(stmdata_add_resources target folder)
  file(GLOB_RECURSE parts CONFIGURE_DEPENDS ${folder}/*.rc ${folder}/*.bmp ${folder}/*.ico)
  string(REPLACE "." "," version_commas ${PROJECT_VERSION})
  if(WIN32)
    set(output ${CMAKE_BINARY_DIR}/stmdata_resources.o)
    set(format coff)
  else()
    set(output ${CMAKE_BINARY_DIR}/stmdata.res)
    set(format res)
  endif()
  add_custom_command(OUTPUT ${output}
    COMMAND ${STMDATA_WINDRES} -c 65001 -O ${format}
      -D STM_VERSION=${PROJECT_VERSION} -D STM_VERSION_COMMAS=${version_commas}
      stmdata.rc ${output}
    WORKING_DIRECTORY ${folder} DEPENDS ${parts} VERBATIM)
  add_custom_target(${target}_image DEPENDS ${output})
  add_library(${target} INTERFACE)
  add_dependencies(${target} ${target}_image)
  if(WIN32)
    target_link_libraries(${target} INTERFACE ${output})
  endif()
endfunction()
