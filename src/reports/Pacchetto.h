#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/zip.h"

namespace kelvo::ooxml {

/// A relation of a part to another. `tipo`: the last word of its type ("header", "image").
struct Relazione {
    std::string id;
    std::string tipo;
    std::string destinazione;  ///< whole name of the part
};

/// The parts of a document, their types and relations. Names of parts have no slash before them ("word/document.xml")
/// and are looked up without regard to case.
class Pacchetto {
public:
    /// Takes the bytes of a .docx or .dotx; it becomes a document. Answers an empty text, or in Italian why it failed:
    /// the package is of no use then.
    std::string leggi(const std::string& dati);
    /// The bytes of the package. Answers an empty text, or in Italian why it failed.
    std::string scrivi(std::string& dati) const;

    /// Name of the part that holds the text.
    const std::string& principale() const { return principale_; }
    /// Null if there is no such part.
    const std::string* parte(std::string_view nome) const;
    void metti(std::string_view nome, std::string dati);

    /// The relations of a part to others of the package.
    std::vector<Relazione> relazioni(const std::string& parte) const;
    /// Adds a picture and the relation of `parte` to it; answers the identifier of the relation, empty if the list of
    /// the relations cannot be read.
    std::string aggiungiImmagine(const std::string& parte, std::string png);

private:
    std::string trovaPrincipale();
    std::string diventaDocumento();
    std::string dichiaraImmagini();

    std::vector<Voce> voci_;
    std::string principale_;
    int immagini_ = 0;
};

}  // namespace kelvo::ooxml
