# kelvo_stanza(<room> [USA <room>...] [LIBRERIE <target>...] [LIBRERIE_PRIVATE <target>...])
#
# Makes the target of one room of src/. Each room's headers are published through a folder of their own: a room sees its
# own headers, those of the rooms that it names (USA) and, as the links are public, those of the rooms that these name
# in turn, which their headers include. What lies beyond does not build. LIBRERIE are the libraries that the headers of
# the room include, and go on to whoever uses it; LIBRERIE_PRIVATE those of its .cpp files alone. The table of who may
# include whom is held exactly by the test of the includes, tests/casa.
function(kelvo_stanza stanza)
  cmake_parse_arguments(S "" "" "USA;LIBRERIE;LIBRERIE_PRIVATE" ${ARGN})
  string(REPLACE "/" "_" bersaglio "${stanza}")
  file(GLOB sorgenti CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/src/${stanza}/*.cpp ${CMAKE_SOURCE_DIR}/src/${stanza}/*.h)
  add_library(kelvo_${bersaglio} STATIC ${sorgenti})
  add_library(kelvo::${bersaglio} ALIAS kelvo_${bersaglio})

  set(vetrina ${CMAKE_BINARY_DIR}/stanze/${bersaglio})
  get_filename_component(genitore ${vetrina}/${stanza} DIRECTORY)
  file(MAKE_DIRECTORY ${genitore})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${stanza} ${vetrina}/${stanza} SYMBOLIC)
  target_include_directories(kelvo_${bersaglio} PUBLIC ${vetrina})

  target_link_libraries(kelvo_${bersaglio} PRIVATE kelvo_opzioni ${S_LIBRERIE_PRIVATE})
  foreach(altra ${S_USA})
    string(REPLACE "/" "_" altra "${altra}")
    target_link_libraries(kelvo_${bersaglio} PUBLIC kelvo::${altra})
  endforeach()
  target_link_libraries(kelvo_${bersaglio} PUBLIC ${S_LIBRERIE})
endfunction()
