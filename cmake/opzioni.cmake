# Compiler options of every target of ours: warnings are errors, floating point stays as written.
add_library(kelvo_opzioni INTERFACE)
target_compile_options(kelvo_opzioni INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Werror
  # Every stored single is rounded where it is stored: no contraction into fused operations.
  -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in plain std::string assignments.
  target_compile_options(kelvo_opzioni INTERFACE -Wno-restrict)
endif()
if(KELVO_SANITIZE)
  target_compile_options(kelvo_opzioni INTERFACE
    -fsanitize=${KELVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kelvo_opzioni INTERFACE -fsanitize=${KELVO_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Instrumented code defeats this analysis: it warns inside the standard library's own headers.
    target_compile_options(kelvo_opzioni INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(KELVO_FUZZ)
  target_compile_options(kelvo_opzioni INTERFACE -fsanitize=fuzzer-no-link)
endif()
