# Where everything goes. The folder of the program keeps its five letters under a folder of four, with the projects
# beside it; the commands in bin/ are links, and the program finds its folder through them.
set(posto lib/kelvo/Prog)
set(permessi OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

function(kelvo_comando nome)
  install(TARGETS ${nome} RUNTIME DESTINATION ${posto}/Kelvo)
  file(CREATE_LINK ../${posto}/Kelvo/${nome} ${cartella}/bin/${nome} SYMBOLIC)
  install(FILES ${cartella}/bin/${nome} DESTINATION bin)
  install(FILES ${cartella}/man/${nome}.1.gz DESTINATION share/man/it/man1 PERMISSIONS ${permessi})
  # Also for those whose language is another.
  file(CREATE_LINK ../it/man1/${nome}.1.gz ${cartella}/man/altre/${nome}.1.gz SYMBOLIC)
  install(FILES ${cartella}/man/altre/${nome}.1.gz DESTINATION share/man/man1)
endfunction()

file(MAKE_DIRECTORY ${cartella}/bin ${cartella}/man/altre)
kelvo_comando(kelvo-cli)

# From their sources, where the build tree has what a person changes while trying the program out, and what an earlier
# build has left.
install(FILES ${CMAKE_SOURCE_DIR}/assets/Kelvo.ini Sistema.txt DESTINATION ${posto}/Kelvo PERMISSIONS ${permessi})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/assets/Progetti DESTINATION ${posto}
  FILE_PERMISSIONS ${permessi} FILES_MATCHING PATTERN *.klv)
install(FILES ${KELVO_MODELLI} DESTINATION ${posto}/Kelvo/Modelli PERMISSIONS ${permessi})
# Folders that only the program fills.
install(DIRECTORY DESTINATION ${posto}/Kelvo/Relazioni)
install(DIRECTORY DESTINATION ${posto}/Kelvo/XLS)
foreach(parte Immagini Support UserGuide)
  install(DIRECTORY ${CMAKE_SOURCE_DIR}/assets/${parte} DESTINATION ${posto}/Kelvo FILE_PERMISSIONS ${permessi})
endforeach()
# What the build makes for these.
foreach(parte Support UserGuide Caratteri)
  install(DIRECTORY ${KELVO_CARTELLA}/${parte} DESTINATION ${posto}/Kelvo FILE_PERMISSIONS ${permessi} OPTIONAL
    FILES_MATCHING PATTERN *.pdf PATTERN *.ttf)
endforeach()

install(FILES debian/copyright ${cartella}/changelog.Debian.gz DESTINATION share/doc/kelvo PERMISSIONS ${permessi})
install(FILES debian/lintian-overrides DESTINATION share/lintian/overrides RENAME kelvo PERMISSIONS ${permessi})

if(KELVO_DESKTOP)
  kelvo_comando(kelvo)
  install(FILES kelvo.desktop DESTINATION share/applications PERMISSIONS ${permessi})
  install(FILES kelvo.xml DESTINATION share/mime/packages PERMISSIONS ${permessi})
  # What catalogues of programs show; the file is called after its component.
  install(FILES kelvo.metainfo.xml DESTINATION share/metainfo
    RENAME invalid.kelvo.kelvo.metainfo.xml PERMISSIONS ${permessi})
  install(DIRECTORY ${cartella}/icone/ DESTINATION share/icons/hicolor FILE_PERMISSIONS ${permessi})
  install(FILES ${KELVO_SEGNO} DESTINATION share/icons/hicolor/scalable/apps RENAME kelvo.svg PERMISSIONS ${permessi})
  install(FILES icone/progetto.svg DESTINATION share/icons/hicolor/scalable/mimetypes
    RENAME application-x-kelvo+json.svg PERMISSIONS ${permessi})
endif()
