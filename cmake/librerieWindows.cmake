# The libraries of a build for Windows on Linux. The distribution has them for its own systems alone: those that are
# headers are taken as they stand (fmt in its form of headers), each through a folder of links, so that no other header
# of the machine comes into reach; GoogleTest is built from the sources that its package holds. Of libsigc++
# and libcsv there are the headers but no library: rooms that use them are compiled, and no program that needs them is
# linked.
set(KELVO_INTESTAZIONI /usr/include CACHE PATH "Where the header-only libraries stand")
set(KELVO_SIGC_CONFIGURAZIONE /usr/lib/x86_64-linux-gnu/sigc++-3.0/include CACHE PATH "Folder of sigc++config.h")
set(KELVO_FONTI_GTEST /usr/src/googletest CACHE PATH "Sources of GoogleTest")
set(KELVO_SENZA_SIGC ON)
# Of pugixml, libzip and libxlsxwriter there is nothing for Windows: the room of the reports is left out.
set(KELVO_SENZA_OOXML ON)

# kelvo_intestazioni(<target> <file or folder>...)
function(kelvo_intestazioni bersaglio)
  string(MAKE_C_IDENTIFIER ${bersaglio} nome)
  set(cartella ${CMAKE_BINARY_DIR}/intestazioni/${nome})
  file(MAKE_DIRECTORY ${cartella})
  foreach(voce ${ARGN})
    if(NOT EXISTS ${voce})
      message(FATAL_ERROR "${bersaglio}: manca ${voce}")
    endif()
    get_filename_component(ultimo ${voce} NAME)
    file(CREATE_LINK ${voce} ${cartella}/${ultimo} SYMBOLIC)
  endforeach()
  add_library(${bersaglio} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${bersaglio} INTERFACE ${cartella})
endfunction()

kelvo_intestazioni(fmt::fmt ${KELVO_INTESTAZIONI}/fmt)
target_compile_definitions(fmt::fmt INTERFACE FMT_HEADER_ONLY=1)
kelvo_intestazioni(utf8cpp ${KELVO_INTESTAZIONI}/utf8.h ${KELVO_INTESTAZIONI}/utf8)
kelvo_intestazioni(nlohmann_json::nlohmann_json ${KELVO_INTESTAZIONI}/nlohmann)
kelvo_intestazioni(CLI11::CLI11 ${KELVO_INTESTAZIONI}/CLI)
kelvo_intestazioni(csv::csv ${KELVO_INTESTAZIONI}/csv.h)
kelvo_intestazioni(PkgConfig::sigc
  ${KELVO_INTESTAZIONI}/sigc++-3.0/sigc++ ${KELVO_SIGC_CONFIGURAZIONE}/sigc++config.h)

if(KELVO_TESTS)
  add_subdirectory(${KELVO_FONTI_GTEST} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endif()
