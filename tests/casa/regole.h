#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo::prove {

/// One target of the house: the rooms and the libraries whose headers it may include.
struct Stanza {
    std::string_view nome;      ///< folder below src/, or below the root for the programs
    std::string_view stanze;    ///< rooms, blank between them; itself and base go without saying
    std::string_view librerie;  ///< names of `Libreria`, blank between them; those of base go without saying
    std::string_view soloCpp;   ///< libraries that its .cpp files alone may include
};

/// The room that a source of the repository belongs to; null for a file of no known room.
/// `percorso`: below the root, with slashes ("src/model/Ramo.h", "apps/kelvo-cli/main.cpp").
const Stanza* stanzaDi(std::string_view percorso);

/// What the file at `percorso` with the text `testo` includes against the table of the house, one sentence each.
/// `cartella`: names of the headers that stand in the file's own folder or below it, relative to it.
std::vector<std::string> estranei(std::string_view percorso, std::string_view testo,
                                  const std::vector<std::string>& cartella);

/// What the build file of src/ links against the table of the house, one sentence each.
std::vector<std::string> legamiEstranei(std::string_view testo);

/// What is wrong with a compiler's command line, one word each: a missing or a forbidden option.
std::vector<std::string> opzioniSbagliate(std::string_view comando);

/// Words that must not stand in a text, with their lines: "12: word".
std::vector<std::string> paroleVietate(std::string_view testo);

/// The text files of the repository that is built, relative to its root, less what is made by the build.
std::vector<std::string> fileDelDeposito();
/// A text file of the repository, empty for a binary one.
std::string testoDelDeposito(const std::string& percorso);

}  // namespace kelvo::prove
