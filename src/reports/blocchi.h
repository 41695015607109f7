#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "reports/DocumentoRelazione.h"
#include "reports/xml.h"

namespace kelvo::ooxml {

/// The styles of a document: what a name stands for.
class Stili {
public:
    Stili() = default;
    /// `radice`: the w:styles element.
    explicit Stili(pugi::xml_node radice) : radice_(radice) {}
    /// Identifier of the style of that identifier or name, without regard to case; `genere` "paragraph" or "table".
    /// Empty if there is none.
    std::string trova(std::string_view nome, std::string_view genere) const;

private:
    pugi::xml_node radice_;
};

/// Size of a PNG in its own dots.
struct Punti {
    std::uint32_t larghezza = 0;
    std::uint32_t altezza = 0;
};
/// Nothing for bytes that are no PNG.
std::optional<Punti> puntiPng(std::string_view png);

/// A picture that stands in the package already.
struct Disegno {
    std::string relazione;
    unsigned id = 0;
    std::int64_t larghezza = 0;  ///< in 1/36000 mm
    std::int64_t altezza = 0;
};
/// Width and height of a picture in a document. Fault 5 for what is no PNG or of no sound size.
Disegno misureDisegno(const ImmagineRelazione& immagine);

/// Fault 5 for a table that cannot be made.
void controllaTabella(const TabellaRelazione& tabella);

/// These fill a new, empty element.
void riempiParagrafo(pugi::xml_node paragrafo, const ParagrafoRelazione& dati, const Stili& stili);
void riempiTabella(pugi::xml_node nodo, const TabellaRelazione& tabella, const Stili& stili);
void riempiImmagine(pugi::xml_node paragrafo, const ImmagineRelazione& immagine, const Disegno& disegno,
                    const Stili& stili);

}  // namespace kelvo::ooxml
