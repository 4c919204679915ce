# Warnings and sanitizers of everything that is built in this tree. Applications of the library do
# not inherit them.

add_library(cwidget_compiler INTERFACE)
target_compile_options(cwidget_compiler INTERFACE -Wall -Wextra)
if(CWIDGET_WERROR)
  target_compile_options(cwidget_compiler INTERFACE -Werror)
endif()

# What this Qt has marked as deprecated, the next one may no longer have.
if(CWIDGET_NO_DEPRECATED)
  target_compile_definitions(cwidget_compiler INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x070000)
endif()

if(CWIDGET_SANITIZE)
  set(flags -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  # Little optimisation and line numbers only: the tests are many, and built once to be run once.
  target_compile_options(cwidget_compiler INTERFACE ${flags} -O1 -g1)
  target_link_options(cwidget_compiler INTERFACE ${flags})
endif()

# The address and the thread sanitizer exclude each other.
if(CWIDGET_SANITIZE_THREADS)
  set(flags -fsanitize=thread -fno-omit-frame-pointer)
  target_compile_options(cwidget_compiler INTERFACE ${flags} -O1 -g)
  target_link_options(cwidget_compiler INTERFACE ${flags})
endif()

# The programs of fuzz/ link the fuzzer itself.
if(CWIDGET_BUILD_FUZZERS)
  set(flags -fsanitize=address,undefined,fuzzer-no-link -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)
  target_compile_options(cwidget_compiler INTERFACE ${flags} -O1 -g)
  target_link_options(cwidget_compiler INTERFACE ${flags})
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
if(CWIDGET_IS_TOP_LEVEL)
  set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
endif()
