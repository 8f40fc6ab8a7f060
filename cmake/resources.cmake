# Resources: every src/resources/*.rc is compiled by windres, for the product
# into an object that is linked in, for the native build into one .res file
# from which the headless backend makes the very same dialogs.
if(WIN32)
  set(MIRRELL_WINDRES ${CMAKE_RC_COMPILER})
else()
  find_program(MIRRELL_WINDRES NAMES x86_64-w64-mingw32-windres REQUIRED)
endif()

# The names of styles and keys come from the resource compiler's own header.
list(APPEND MIRRELL_WINDRES -c 65001 --preprocessor-arg=-include --preprocessor-arg=windows.h)

set(MIRRELL_RESOURCE_DIR ${PROJECT_SOURCE_DIR}/src/resources)
file(GLOB MIRRELL_RESOURCE_PARTS CONFIGURE_DEPENDS ${MIRRELL_RESOURCE_DIR}/*)
if(WIN32)
  set(MIRRELL_RESOURCE_OUT ${PROJECT_BINARY_DIR}/mirrell_resources.o)
  set(_format coff)
else()
  set(MIRRELL_RESOURCE_OUT ${PROJECT_BINARY_DIR}/mirrell.res)
  set(_format res)
endif()
add_custom_command(
  OUTPUT ${MIRRELL_RESOURCE_OUT}
  COMMAND ${MIRRELL_WINDRES} -O ${_format} -I ${MIRRELL_RESOURCE_DIR}
          -i ${MIRRELL_RESOURCE_DIR}/mirrell.rc -o ${MIRRELL_RESOURCE_OUT}
  DEPENDS ${MIRRELL_RESOURCE_PARTS}
  VERBATIM)
add_custom_target(mirrell_resources DEPENDS ${MIRRELL_RESOURCE_OUT})
