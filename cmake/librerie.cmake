# The libraries of the whole tree, all from the distribution.
find_package(fmt REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(utf8cpp REQUIRED)
find_package(CLI11 REQUIRED)
