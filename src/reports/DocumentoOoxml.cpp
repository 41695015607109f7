#include "reports/DocumentoOoxml.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <set>
#include <utility>

#include "base/guasto.h"
#include "reports/struttura.h"
#include "reports/tabelle.h"

namespace kelvo::ooxml {

namespace {

constexpr std::string_view spazioTesto = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";

[[noreturn]] void rifiuta(std::string_view parole) {
    throw Guasto::conParole(NumeroGuasto::chiamataNonValida, parole);
}

/// A text as a number; 0 for what is none.
unsigned numero(std::string_view testo) {
    unsigned letto = 0;
    std::from_chars(testo.data(), testo.data() + testo.size(), letto);
    return letto;
}

/// Takes the marks of values off, for as long as it lives: no file holds them.
class SenzaSegni {
public:
    explicit SenzaSegni(pugi::xml_node radice) {
        for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
            if (nodo.remove_attribute(segnoValore)) {
                segnati_.push_back(nodo);
            }
        }
    }
    SenzaSegni(const SenzaSegni&) = delete;
    SenzaSegni& operator=(const SenzaSegni&) = delete;
    ~SenzaSegni() {
        for (pugi::xml_node nodo : segnati_) {
            nodo.append_attribute(segnoValore) = "1";
        }
    }

private:
    std::vector<pugi::xml_node> segnati_;
};

/// Format for a text at `nodo` of a paragraph: of the run beside it, else of the mark of the paragraph.
pugi::xml_node formatoAccanto(pugi::xml_node nodo, pugi::xml_node paragrafo) {
    for (const bool seguente : {false, true}) {
        for (pugi::xml_node altro = nodo; altro; altro = seguente ? altro.next_sibling() : altro.previous_sibling()) {
            if (chiamato(altro, "w:r")) {
                return altro.child("w:rPr");
            }
        }
    }
    return paragrafo.child("w:pPr").child("w:rPr");
}

}  // namespace

std::string DocumentoOoxml::apri(const std::string& dati) {
    std::string errore = pacchetto_.leggi(dati);
    if (errore.empty()) {
        errore = apriStoria(pacchetto_.principale());
    }
    if (!errore.empty()) {
        return errore;
    }
    const pugi::xml_node radice = storie_.front()->radice();
    if (valore(radice, "xmlns:w") != spazioTesto) {
        return "è in una variante del formato che non è gestita: va salvato come .dotx";
    }
    if (!chiamato(radice, "w:document") || !radice.child("w:body")) {
        return "manca il testo del documento";
    }
    constexpr std::array<std::string_view, 4> altre{"header", "footer", "footnotes", "endnotes"};
    std::set<std::string> aperte{storie_.front()->nome};
    for (const Relazione& relazione : pacchetto_.relazioni(pacchetto_.principale())) {
        const bool storia = std::find(altre.begin(), altre.end(), relazione.tipo) != altre.end();
        if (storia && pacchetto_.parte(relazione.destinazione) != nullptr &&
            aperte.insert(relazione.destinazione).second) {
            errore = apriStoria(relazione.destinazione);
        } else if (relazione.tipo == "styles" && pacchetto_.parte(relazione.destinazione) != nullptr) {
            errore = leggiXml(*pacchetto_.parte(relazione.destinazione), stili_);
        }
        if (!errore.empty()) {
            return errore;
        }
    }
    return {};
}

std::string DocumentoOoxml::apriStoria(const std::string& nome) {
    auto storia = std::make_unique<Storia>();
    storia->nome = nome;
    std::string errore = leggiXml(*pacchetto_.parte(nome), storia->xml);
    storie_.push_back(std::move(storia));
    return errore;
}

int DocumentoOoxml::sostituisciOvunque(const std::vector<Coppia>& coppie) {
    int quante = 0;
    for (const auto& storia : storie_) {
        quante += sostituisci(storia->radice(), coppie);
    }
    return quante;
}

int DocumentoOoxml::Sostituisci(std::string_view cercato, std::string_view nuovo) {
    const std::array una{Sostituzione{std::string(cercato), std::string(nuovo)}};
    return Sostituisci(una);
}

int DocumentoOoxml::Sostituisci(std::span<const Sostituzione> coppie) {
    std::vector<Coppia> cercate;
    for (const Sostituzione& una : coppie) {
        std::string cercato = senzaMaiuscole(testoAmmesso(una.cercato));
        if (!cercato.empty()) {
            cercate.push_back({std::move(cercato), testoAmmesso(una.nuovo)});
        }
    }
    return cercate.empty() ? 0 : sostituisciOvunque(cercate);
}

int DocumentoOoxml::Sbianca(std::span<const std::string_view> elenco) {
    std::vector<Sostituzione> vuote;
    for (const std::string_view testo : elenco) {
        vuote.push_back({std::string(testo), {}});
    }
    return Sostituisci(vuote);
}

bool DocumentoOoxml::HaSegnalibro(std::string_view nome) const {
    return std::any_of(storie_.begin(), storie_.end(), [&](const auto& storia) {
        return static_cast<bool>(trovaSegnalibro(storia->radice(), nome).inizio);
    });
}

void DocumentoOoxml::SelezionaSegnalibro(std::string_view nome) {
    for (const auto& storia : storie_) {
        const Segnalibro trovato = trovaSegnalibro(storia->radice(), nome);
        if (trovato.inizio) {
            // What is closed now may move the bookmark: it stands where it was found afterwards too.
            seleziona({Genere::segnalibro, storia.get(), trovato, {}, false});
            return;
        }
    }
    throw SegnalibroMancante(fmt::format("Il segnalibro \"{}\" non esiste nel documento", nome));
}

void DocumentoOoxml::SelezionaFine() {
    seleziona({});
    const pugi::xml_node radice = storie_.front()->radice();
    sistemaParte(radice);
    pugi::xml_node ultimo = radice.child("w:body").last_child();
    while (!chiamato(ultimo, "w:p")) {
        ultimo = ultimo.previous_sibling();
    }
    if (!vuoto(ultimo)) {
        ultimo = ultimo.parent().insert_child_after("w:p", ultimo);
    }
    selezione_ = {Genere::blocchi, storie_.front().get(), {}, ultimo, false};
}

void DocumentoOoxml::seleziona(const Selezione& nuova) {
    chiudiBlocchi();
    selezione_ = nuova;
}

/// The paragraph in front of which blocks were put goes if it is of no use: empty, and no table stands on its both
/// sides or needs it behind itself at an end.
void DocumentoOoxml::chiudiBlocchi() {
    pugi::xml_node posto = selezione_.nodo;
    if (selezione_.genere != Genere::blocchi || !selezione_.inserito || !vuoto(posto) ||
        posto.child("w:pPr").child("w:sectPr")) {
        return;
    }
    pugi::xml_node dopo = posto.next_sibling();
    while (dopo && eMarcatore(dopo)) {
        dopo = dopo.next_sibling();
    }
    const bool serve = chiamato(posto.previous_sibling(), "w:tbl") && !chiamato(dopo, "w:p");
    const bool solo = !posto.previous_sibling() || eProprieta(posto.previous_sibling());
    if (!serve && !solo) {
        salvaMarcatori(posto);
        posto.parent().remove_child(posto);
    }
    selezione_ = {};
}

bool DocumentoOoxml::SelezioneInTabella() const {
    const bool segnalibro = selezione_.genere == Genere::segnalibro;
    const pugi::xml_node qui = segnalibro ? selezione_.segnalibro.inizio : selezione_.nodo;
    return chiamato(qui, "w:tc") || antenato(qui, "w:tc") || (segnalibro && chiamato(qui.parent(), "w:tr"));
}

void DocumentoOoxml::CellaSuccessiva() {
    const bool segnalibro = selezione_.genere == Genere::segnalibro;
    pugi::xml_node qui = segnalibro ? selezione_.segnalibro.inizio : selezione_.nodo;
    pugi::xml_node cella = chiamato(qui, "w:tc") ? qui : antenato(qui, "w:tc");
    if (segnalibro && chiamato(qui.parent(), "w:tr")) {
        // Between two cells: in the one that follows it.
        cella = qui.next_sibling("w:tc");
    }
    const pugi::xml_node altra = cella ? cellaSuccessiva(cella) : pugi::xml_node{};
    if (!altra) {
        rifiuta("La selezione non sta in una tabella");
    }
    seleziona({Genere::cella, selezione_.storia, {}, altra, false});
}

void DocumentoOoxml::scriviNellaCella(pugi::xml_node cella, const std::string& testo) {
    pugi::xml_document copia;
    if (const pugi::xml_node formato = formatoDi(cella)) {
        copia.append_copy(formato);
    }
    svuotaCella(cella);
    const pugi::xml_node corsa = aggiungiCorsa(cella.child("w:p"), testo);
    copiaFormato(corsa, copia.first_child());
    selezione_ = {Genere::corsa, selezione_.storia, {}, corsa, false};
}

/// The paragraph that the bookmark stands in, else the first behind it; null if there is none.
pugi::xml_node DocumentoOoxml::paragrafoScelto() {
    const pugi::xml_node inizio = selezione_.segnalibro.inizio;
    const pugi::xml_node sopra = antenato(inizio, "w:p");
    if (sopra) {
        return sopra;
    }
    const pugi::xml_node radice = selezione_.storia->radice();
    pugi::xml_node nodo = inizio;
    while (nodo && !chiamato(nodo, "w:p")) {
        nodo = successivo(nodo, radice);
    }
    return nodo;
}

void DocumentoOoxml::scriviAlSegnalibro(const std::string& testo) {
    const Segnalibro segnalibro = selezione_.segnalibro;
    pugi::xml_node paragrafo = paragrafoScelto();
    if (!paragrafo) {
        rifiuta("Dopo il segnalibro non c'è un paragrafo in cui scrivere");
    }
    const bool suo = antenato(segnalibro.inizio, "w:p") == paragrafo;
    pugi::xml_node dopo = suo ? segnalibro.inizio : paragrafo.child("w:pPr");
    pugi::xml_node sopra = suo ? segnalibro.inizio.parent() : paragrafo;
    pugi::xml_document copia;
    const pugi::xml_node formato =
        formatoAccanto(segnalibro.fine && suo ? segnalibro.inizio.next_sibling() : dopo, paragrafo);
    if (formato) {
        copia.append_copy(formato);
    }
    if (segnalibro.fine && segnalibro.fine.parent() == segnalibro.inizio.parent() && suo) {
        for (pugi::xml_node nodo = segnalibro.inizio.next_sibling(); nodo && nodo != segnalibro.fine;) {
            const pugi::xml_node prossimo = nodo.next_sibling();
            if (!eMarcatore(nodo)) {
                sopra.remove_child(nodo);
            }
            nodo = prossimo;
        }
    }
    const pugi::xml_node corsa = dopo ? sopra.insert_child_after("w:r", dopo) : sopra.prepend_child("w:r");
    aggiungiValore(corsa, testo);
    copiaFormato(corsa, copia.first_child());
    selezione_ = {Genere::corsa, selezione_.storia, {}, corsa, false};
}

void DocumentoOoxml::ScriviTesto(std::string_view testo) {
    const std::string ammesso = testoAmmesso(testo);
    switch (selezione_.genere) {
        case Genere::segnalibro:
            scriviAlSegnalibro(ammesso);
            return;
        case Genere::cella:
            scriviNellaCella(selezione_.nodo, ammesso);
            return;
        case Genere::corsa: {
            pugi::xml_node corsa = selezione_.nodo.parent().insert_child_after("w:r", selezione_.nodo);
            aggiungiValore(corsa, ammesso);
            copiaFormato(corsa, selezione_.nodo.child("w:rPr"));
            selezione_.nodo = corsa;
            return;
        }
        case Genere::blocchi: {
            const pugi::xml_node corsa = aggiungiCorsa(selezione_.nodo, ammesso);
            copiaFormato(corsa, selezione_.nodo.child("w:pPr").child("w:rPr"));
            selezione_ = {Genere::corsa, selezione_.storia, {}, corsa, false};
            return;
        }
        case Genere::nessuna:
            break;
    }
    rifiuta("Nel documento non è selezionato nulla");
}

void DocumentoOoxml::EliminaSelezione() {
    if (selezione_.genere == Genere::nessuna) {
        rifiuta("Nel documento non è selezionato nulla");
    }
    if (selezione_.genere == Genere::cella) {
        svuotaCella(selezione_.nodo);
        return;
    }
    if (selezione_.genere == Genere::segnalibro) {
        eliminaSegnalibro(selezione_.storia->radice(), selezione_.segnalibro);
        selezione_ = {};
    }
}

/// The paragraph in front of which blocks are put.
pugi::xml_node DocumentoOoxml::postoBlocchi() {
    if (selezione_.genere == Genere::blocchi) {
        return selezione_.nodo;
    }
    if (selezione_.genere == Genere::nessuna) {
        rifiuta("Nel documento non è selezionato nulla");
    }
    pugi::xml_node paragrafo = antenato(selezione_.nodo, "w:p");
    if (selezione_.genere == Genere::segnalibro) {
        paragrafo = paragrafoScelto();
    } else if (selezione_.genere == Genere::cella) {
        paragrafo = selezione_.nodo.child("w:p");
    }
    if (!paragrafo) {
        rifiuta("Nel punto scelto non c'è un paragrafo");
    }
    if (!vuoto(paragrafo)) {
        const pugi::xml_node pieno = paragrafo;
        paragrafo = paragrafo.parent().insert_child_after("w:p", pieno);
        const pugi::xml_node sezione = pieno.child("w:pPr").child("w:sectPr");
        if (sezione) {
            // What is put behind the last paragraph of a section belongs to that section still.
            paragrafo.append_child("w:pPr").append_move(sezione);
        }
    }
    selezione_ = {Genere::blocchi, selezione_.storia, {}, paragrafo, false};
    return paragrafo;
}

pugi::xml_node DocumentoOoxml::nuovoBlocco(const char* nome) {
    pugi::xml_node posto = postoBlocchi();
    pugi::xml_node sopra = posto.parent();
    pugi::xml_node prima = posto.previous_sibling();
    while (prima && eMarcatore(prima)) {
        prima = prima.previous_sibling();
    }
    if (std::string_view(nome) == "w:tbl" && chiamato(prima, "w:tbl")) {
        sopra.insert_child_before("w:p", posto);
    }
    selezione_.inserito = true;
    return sopra.insert_child_before(nome, posto);
}

void DocumentoOoxml::InserisciParagrafo(const ParagrafoRelazione& paragrafo) {
    riempiParagrafo(nuovoBlocco("w:p"), paragrafo, stili());
}

void DocumentoOoxml::InserisciTabella(const TabellaRelazione& tabella) {
    controllaTabella(tabella);
    riempiTabella(nuovoBlocco("w:tbl"), tabella, stili());
}

void DocumentoOoxml::InserisciImmagine(const ImmagineRelazione& immagine) {
    Disegno disegno = misureDisegno(immagine);
    postoBlocchi();
    disegno.relazione = pacchetto_.aggiungiImmagine(selezione_.storia->nome, immagine.png);
    if (disegno.relazione.empty()) {
        rifiuta("L'immagine non può essere aggiunta al documento");
    }
    disegno.id = idDisegno();
    riempiImmagine(nuovoBlocco("w:p"), immagine, disegno, stili());
}

/// A number that no picture of the document has.
unsigned DocumentoOoxml::idDisegno() {
    if (ultimoDisegno_ == 0) {
        for (const auto& storia : storie_) {
            const pugi::xml_node radice = storia->radice();
            for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
                if (chiamato(nodo, "wp:docPr")) {
                    ultimoDisegno_ = std::max(ultimoDisegno_, std::min(numero(valore(nodo, "id")), 1000000U));
                }
            }
        }
    }
    return ++ultimoDisegno_;
}

std::string DocumentoOoxml::Contenuto() {
    seleziona({});
    numeraDidascalie(storie_.front()->radice());
    for (const auto& storia : storie_) {
        const SenzaSegni puliti(storia->radice());
        pacchetto_.metti(storia->nome, scriviXml(storia->xml));
    }
    std::string dati;
    const std::string errore = pacchetto_.scrivi(dati);
    if (!errore.empty()) {
        throw Guasto::conParole(NumeroGuasto::operazioneImpossibile,
                                fmt::format("Il documento non può essere composto: {}", errore));
    }
    return dati;
}

void DocumentoOoxml::Salva(SistemaFile& sistema, const std::string& percorso) {
    const std::string errore = scriviFileSicuro(sistema, percorso, Contenuto());
    if (!errore.empty()) {
        throw Guasto::conParole(NumeroGuasto::accessoPercorso,
                                fmt::format("Il documento non è stato salvato: {}", errore));
    }
}

}  // namespace kelvo::ooxml
