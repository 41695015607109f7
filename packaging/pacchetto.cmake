# The package of Debian, by cpack. What the program is linked with is found by the system's own tool; what it loads while
# it runs is named here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kelvo)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "progetto e verifica di rotatorie stradali")
set(CPACK_PACKAGE_DESCRIPTION "Kelvo aiuta chi progetta e verifica rotatorie stradali da tre a sette rami.
Dalla geometria degli ingressi, dalla domanda, dalle svolte e dalla
composizione del traffico calcola, per ogni ingresso e ogni segmento di
tempo, capacità, coefficiente di saturazione, coda, ritardo e livello di
servizio, e la capacità ultima del nodo.
.
Controlla i dati, confronta geometrie e corsie di svolta a destra, compila
relazioni e fogli di calcolo, disegna la pianta e i grafici. Il pacchetto
contiene il programma da tavolo (kelvo) e la riga di comando (kelvo-cli).")
set(CPACK_PACKAGE_CONTACT "${KELVO_MANUTENTORE}")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/pacchetti)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
# The rules alone: what they install is built by the target kelvo_pacchetto.
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};Kelvo;ALL;/")
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(KELVO_DESKTOP)
  # The drawings are read by an engine that is loaded while the program runs; the words of the standard buttons too.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, qt6-translations-l10n")
  # Documents are opened by the first; by the others a desktop knows projects and their icon.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, desktop-file-utils, hicolor-icon-theme, shared-mime-info")
  set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libreoffice-writer-nogui | libreoffice-writer")
endif()
include(CPack)
