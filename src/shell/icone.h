#pragma once

#include <array>
#include <string_view>

namespace kelvo {

/// Keys of the pictures that menu, tool bar and tree share; the position is the picture's index.
inline constexpr std::array<std::string_view, 25> ImageList2014{
    "Risultati",
    "DatiTrafficoFolder",
    "DatiTraffico",
    "Opzioni1",
    "Opzioni",
    "RisultatiFolder",
    "TempoModellazione",
    "ComposizioneTraffico",
    "GeometriaFolder",
    "Geometria",
    "MatriceSvolte",
    "OpenFolder",
    "ComposizioneTrafficoFolder",
    "Progetto",
    "Nuovo",
    "Apri",
    "Salva",
    "Esci",
    "Chiudi",
    "Help",
    "KelvoCAD",
    "Analizzatore",
    "Check",
    "Dx",
    "terra",
};

/// The same keys, with the pictures of what is disabled.
inline constexpr const auto& ImageList2014disable = ImageList2014;

/// Pictures that the tree has beside the shared ones, with the shared picture that each is drawn from.
struct ImmagineAlbero {
    std::string_view chiave;
    std::string_view disegno;
};
inline constexpr std::array immaginiAlbero{
    ImmagineAlbero{"strumenti", "strumenti"},
    ImmagineAlbero{"analizzatore", "Analizzatore"},
    ImmagineAlbero{"dx", "Dx"},
    ImmagineAlbero{"check", "Check"},
    ImmagineAlbero{"terra", "terra"},
};

/// Position of a picture, from 0. Fault 9 for a key that is not in the list.
int plGetIconIndex(std::string_view chiave);

}  // namespace kelvo
