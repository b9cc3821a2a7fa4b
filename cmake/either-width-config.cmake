# stmdata::stmdata of the project's width.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  include(${CMAKE_CURRENT_LIST_DIR}/../x86/lib/cmake/stmdata/stmdata-config.cmake)
else()
  include(${CMAKE_CURRENT_LIST_DIR}/../x64/lib/cmake/stmdata/stmdata-config.cmake)
endif()
