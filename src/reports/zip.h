#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelvo::ooxml {

/// A file of an archive: its name with slashes and its bytes.
struct Voce {
    std::string nome;
    std::string dati;
};

/// What an archive may hold at most: more is refused while it is read.
inline constexpr std::size_t massimeVoci = 1000;
inline constexpr std::uint64_t massimoVoce = std::uint64_t{16} * 1024 * 1024;
inline constexpr std::uint64_t massimoTotale = std::uint64_t{48} * 1024 * 1024;

/// Reads an archive into `voci`, folders left out. Refused are damaged and encrypted ones, names that lead out of the
/// archive or stand there twice. Answers an empty text, or in Italian why it failed.
std::string leggiArchivio(const std::string& dati, std::vector<Voce>& voci);

/// The bytes of an archive of these files, in their order; the same files always give the same bytes.
/// Answers an empty text, or in Italian why it failed.
std::string scriviArchivio(const std::vector<Voce>& voci, std::string& dati);

}  // namespace kelvo::ooxml
