# The libraries of the whole tree, all from the distribution.
if(CMAKE_CROSSCOMPILING)
  include(${CMAKE_CURRENT_LIST_DIR}/librerieWindows.cmake)
else()
  find_package(fmt REQUIRED)
  find_package(nlohmann_json REQUIRED)
  find_package(utf8cpp REQUIRED)
  find_package(CLI11 REQUIRED)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(sigc REQUIRED IMPORTED_TARGET GLOBAL sigc++-3.0)
  # libcsv comes without a file that tells where it stands.
  find_library(KELVO_LIBCSV csv REQUIRED)
  find_path(KELVO_INTESTAZIONI_CSV csv.h REQUIRED)
  add_library(csv::csv UNKNOWN IMPORTED GLOBAL)
  set_target_properties(csv::csv PROPERTIES IMPORTED_LOCATION ${KELVO_LIBCSV}
    INTERFACE_INCLUDE_DIRECTORIES ${KELVO_INTESTAZIONI_CSV})
  find_package(pugixml REQUIRED)
  # The CMake files of its package want programs that come with another one.
  pkg_check_modules(libzip REQUIRED IMPORTED_TARGET GLOBAL libzip)
  pkg_check_modules(xlsxwriter REQUIRED IMPORTED_TARGET GLOBAL xlsxwriter)
endif()
if(KELVO_DESKTOP)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport Svg Test)
endif()
