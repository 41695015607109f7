#include "reports/Pacchetto.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <utility>

#include "base/testo.h"
#include "reports/xml.h"

namespace kelvo::ooxml {

namespace {

constexpr std::string_view tipi = "[Content_Types].xml";
constexpr const char* spazioRelazioni = "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr const char* tipoImmagine = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/image";
constexpr std::string_view radiceWord = "application/vnd.openxmlformats-officedocument.wordprocessingml.";
// First bytes of the older binary files, which also wrap documents closed by a password.
constexpr std::string_view firmaBinaria = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

std::string cartellaDi(std::string_view parte) {
    const std::size_t barra = parte.rfind('/');
    return barra == std::string_view::npos ? std::string{} : std::string(parte.substr(0, barra + 1));
}

std::string nomeRelazioni(const std::string& parte) {
    const std::string cartella = cartellaDi(parte);
    return cartella + "_rels/" + parte.substr(cartella.size()) + ".rels";
}

/// Whole name of the target of a relation told from a folder.
std::string risolvi(const std::string& cartella, std::string_view destinazione) {
    std::string percorso;
    if (destinazione.substr(0, 1) == "/") {
        destinazione.remove_prefix(1);
    } else {
        percorso = cartella;
    }
    while (!destinazione.empty()) {
        const std::size_t lungo = std::min(destinazione.find('/'), destinazione.size());
        const std::string_view pezzo = destinazione.substr(0, lungo);
        const bool ultimo = lungo == destinazione.size();
        if (pezzo == "..") {
            percorso =
                percorso.empty() ? percorso : cartellaDi(std::string_view(percorso).substr(0, percorso.size() - 1));
        } else if (pezzo != "." && !pezzo.empty()) {
            percorso += std::string(pezzo) + (ultimo ? "" : "/");
        }
        destinazione.remove_prefix(ultimo ? lungo : lungo + 1);
    }
    return percorso;
}

std::string ultimaParola(std::string_view tipo) {
    return std::string(tipo.substr(tipo.rfind('/') + 1));
}

/// An identifier that no relation of the list has.
std::string idLibero(pugi::xml_node relazioni) {
    std::set<std::string> presi;
    for (const pugi::xml_node relazione : relazioni.children()) {
        presi.insert(std::string(valore(relazione, "Id")));
    }
    for (std::size_t numero = presi.size() + 1;; ++numero) {
        std::string id = fmt::format("rId{}", numero);
        if (presi.count(id) == 0) {
            return id;
        }
    }
}

}  // namespace

std::string Pacchetto::leggi(const std::string& dati) {
    if (dati.compare(0, firmaBinaria.size(), firmaBinaria) == 0) {
        return "è nel vecchio formato binario o protetto da una parola d'ordine: va salvato come .dotx";
    }
    std::string errore = leggiArchivio(dati, voci_);
    if (errore.empty()) {
        errore = trovaPrincipale();
    }
    return errore.empty() ? diventaDocumento() : errore;
}

std::string Pacchetto::scrivi(std::string& dati) const {
    return scriviArchivio(voci_, dati);
}

const std::string* Pacchetto::parte(std::string_view nome) const {
    const auto trovata = std::find_if(voci_.begin(), voci_.end(),
                                      [&](const Voce& voce) { return ugualiSenzaMaiuscole(voce.nome, nome); });
    return trovata == voci_.end() ? nullptr : &trovata->dati;
}

void Pacchetto::metti(std::string_view nome, std::string dati) {
    const auto trovata = std::find_if(voci_.begin(), voci_.end(),
                                      [&](const Voce& voce) { return ugualiSenzaMaiuscole(voce.nome, nome); });
    if (trovata == voci_.end()) {
        voci_.push_back({std::string(nome), std::move(dati)});
    } else {
        trovata->dati = std::move(dati);
    }
}

std::vector<Relazione> Pacchetto::relazioni(const std::string& parte) const {
    std::vector<Relazione> trovate;
    const std::string* testo = this->parte(nomeRelazioni(parte));
    pugi::xml_document documento;
    if (testo == nullptr || !leggiXml(*testo, documento).empty()) {
        return trovate;
    }
    for (const pugi::xml_node relazione : documento.document_element().children("Relationship")) {
        if (valore(relazione, "TargetMode") != "External") {
            trovate.push_back({std::string(valore(relazione, "Id")), ultimaParola(valore(relazione, "Type")),
                               risolvi(cartellaDi(parte), valore(relazione, "Target"))});
        }
    }
    return trovate;
}

std::string Pacchetto::trovaPrincipale() {
    if (parte(tipi) == nullptr || parte("_rels/.rels") == nullptr) {
        return "non è un documento .docx o .dotx";
    }
    for (const Relazione& relazione : relazioni({})) {
        if (relazione.tipo == "officeDocument" && parte(relazione.destinazione) != nullptr) {
            // The name as the package writes it, without regard to how the relation does.
            principale_ = std::find_if(voci_.begin(), voci_.end(), [&](const Voce& voce) {
                              return ugualiSenzaMaiuscole(voce.nome, relazione.destinazione);
                          })->nome;
            return {};
        }
    }
    return "manca il testo del documento";
}

std::string Pacchetto::diventaDocumento() {
    pugi::xml_document documento;
    if (!leggiXml(*parte(tipi), documento).empty()) {
        return "manca l'elenco delle parti";
    }
    const std::string modello = std::string(radiceWord) + "template.main+xml";
    const std::string relazione = std::string(radiceWord) + "document.main+xml";
    for (const pugi::xml_node voce : documento.document_element().children("Override")) {
        if (!ugualiSenzaMaiuscole(valore(voce, "PartName"), "/" + principale_)) {
            continue;
        }
        const std::string_view tipo = valore(voce, "ContentType");
        if (tipo.find("macroEnabled") != std::string_view::npos) {
            return "contiene macro: va salvato come .dotx";
        }
        if (tipo != modello && tipo != relazione) {
            return "non è un documento di testo";
        }
        imposta(voce, "ContentType", relazione);
        metti(tipi, scriviXml(documento));
        return {};
    }
    return "non è un documento di testo";
}

std::string Pacchetto::dichiaraImmagini() {
    pugi::xml_document documento;
    std::string errore = leggiXml(*parte(tipi), documento);
    if (!errore.empty()) {
        return errore;
    }
    const pugi::xml_node radice = documento.document_element();
    for (const pugi::xml_node voce : radice.children("Default")) {
        if (ugualiSenzaMaiuscole(valore(voce, "Extension"), "png")) {
            return {};
        }
    }
    const pugi::xml_node voce = pugi::xml_node(radice).prepend_child("Default");
    imposta(voce, "Extension", "png");
    imposta(voce, "ContentType", "image/png");
    metti(tipi, scriviXml(documento));
    return {};
}

std::string Pacchetto::aggiungiImmagine(const std::string& parte, std::string png) {
    const std::string elenco = nomeRelazioni(parte);
    const std::string* testo = this->parte(elenco);
    pugi::xml_document documento;
    if (testo == nullptr) {
        imposta(documento.append_child("Relationships"), "xmlns", spazioRelazioni);
    } else if (!leggiXml(*testo, documento).empty()) {
        return {};
    }
    if (!dichiaraImmagini().empty()) {
        return {};
    }
    std::string nome;
    do {
        nome = fmt::format("{}media/kelvo{}.png", cartellaDi(principale_), ++immagini_);
    } while (this->parte(nome) != nullptr);
    std::string id = idLibero(documento.document_element());
    pugi::xml_node relazione = documento.document_element().append_child("Relationship");
    imposta(relazione, "Id", id);
    imposta(relazione, "Type", tipoImmagine);
    imposta(relazione, "Target", "/" + nome);
    metti(elenco, scriviXml(documento));
    metti(nome, std::move(png));
    return id;
}

}  // namespace kelvo::ooxml
