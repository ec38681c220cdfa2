# The compiler settings that every target shares.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_compile_options(-Wall -Wextra -Wconversion -Wshadow)
include_directories(${CMAKE_SOURCE_DIR}/src)

if(SANITIZE)
  add_compile_options(-fsanitize=${SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${SANITIZE})
endif()

include(CheckPIESupported)
check_pie_supported()
if(HARDENED)
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection -Wformat
                      -Werror=format-security)
  add_link_options(-Wl,-z,relro,-z,now)
  # Not every processor has it.
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection HAS_CONTROL_FLOW_PROTECTION)
  if(HAS_CONTROL_FLOW_PROTECTION)
    add_compile_options(-fcf-protection)
  endif()
endif()
