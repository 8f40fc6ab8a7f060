# Flags that every target of the project is compiled with.
#
# Sources are UTF-8; literals become code page 932 bytes, the encoding of every
# text inside the program and of its data files.
add_library(mirrell_options INTERFACE)
target_compile_options(mirrell_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror
  -finput-charset=UTF-8 -fexec-charset=CP932)
target_include_directories(mirrell_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(MIRRELL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
  # Windows 7 and later; nothing but the system's own libraries at run time.
  add_compile_definitions(_WIN32_WINNT=0x0601 WINVER=0x0601 UNICODE _UNICODE)
  add_link_options(-static)
endif()
