#include "checkup/regole.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {

namespace {

constexpr std::string_view nomePredefinito = "Rotatoria_001";
constexpr double minutiOra = 60.0;
constexpr double oreMinime = 1.5;
constexpr std::array<double, 2> segmentiAmpi{20.0, 30.0};

char letteraDi(const EsameRamo& esame) {
    return static_cast<char>('A' + esame.indice - 1);
}

// What a field shows.
template <const std::string& (Rotonda::*Proprieta)() const>
std::string proprieta(const Rotonda& rotonda) {
    return (rotonda.*Proprieta)();
}

std::string giornoMostrato(const Rotonda& rotonda) {
    return testoData(rotonda.Data());
}

// Conditions on the text of a field.
bool vuoto(const std::string& testo, DataOra /*oggi*/) {
    return testo.empty();
}

bool precede(const std::string& testo, DataOra oggi) {
    const auto giorno = leggiData(testo);
    return giorno && *giorno < std::floor(oggi);
}

bool predefinito(const std::string& testo, DataOra /*oggi*/) {
    return testo == nomePredefinito;
}

// Conditions on a leg.
bool nomeDaSolo(const EsameRamo& e) {
    return e.ramo.Descrizione() == std::string{"Ramo "} + letteraDi(e);
}

float diametro(const EsameRamo& e) {
    return e.ramo.DiametroInscritto();
}

bool pesanti(const EsameRamo& e) {
    const ComposizioneTraffico& composizione = e.ramo.theComposizioneTraffico();
    return composizione.Autoarticolati() != 0.0F || composizione.Autotreni() != 0.0F;
}

/// Field of the first class of heavy vehicles that there are.
std::string_view classePesante(const EsameRamo& e) {
    return e.ramo.theComposizioneTraffico().Autoarticolati() != 0.0F ? "txtAutoarticolati" : "txtAutotreni";
}

float flusso(const EsameRamo& e) {
    return e.ramo.theDatiTraffico().FlussoOrario();
}

/// From 1900 to 3800 veic/h.
bool flussoAlto(const EsameRamo& e) {
    return flusso(e) >= 1900.0F && flusso(e) <= 3800.0F;
}

/// Above 3801 veic/h; between 3800 and that nothing is said.
bool flussoAltissimo(const EsameRamo& e) {
    return flusso(e) > 3801.0F;
}

/// Share of the right turns, worked out from the figures as they read, to the nearest single; 0 for a row without
/// vehicles.
float quotaDestra(const EsameRamo& e) {
    const auto letto = [](float valore) { return leggiNumero(testoNumero(valore)).value_or(0.0); };
    return e.somma > 0.0F ? static_cast<float>(letto(e.destra) / letto(e.somma)) : 0.0F;
}

bool categorieNulle(const EsameRamo& e) {
    double totale = 0.0;
    for (const PerClasse& riga : e.ramo.theComposizioneTraffico().Categorie()) {
        for (const float valore : riga) {
            totale += static_cast<double>(valore);
        }
    }
    return totale == 0.0;
}

/// Two figures that read alike are one: beyond that nobody could put them right.
bool veicoliIncoerenti(const EsameRamo& e) {
    return testoNumero(e.somma) != testoNumero(e.ramo.theDatiTraffico().FlussoTotale());
}

using R = Rotonda;

constexpr std::array anagrafica{
    RegolaCampo{Livello::Yellow, "txtData", giornoMostrato, precede,
                "campo 'Data' di progetto prededente data attuale."},
    RegolaCampo{Livello::Yellow, "txtNomeFile", proprieta<&R::NomeFile>, predefinito,
                "Nome file progetto di Default: si consiglia di rinominarlo."},
    RegolaCampo{Livello::Green, "txtStatoAvanzamento", proprieta<&R::StatoAvanzamento>, vuoto,
                "campo 'Stato avanzamento' progetto non selezionato."},
    RegolaCampo{Livello::Green, "txtLocalita", proprieta<&R::Localita>, vuoto,
                "campo 'Località/Frazione/Borgata' non inserito."},
    RegolaCampo{Livello::Green, "txtComune", proprieta<&R::Comune>, vuoto, "campo 'Comune' non inserito."},
    RegolaCampo{Livello::Green, "txtProvincia", proprieta<&R::Provincia>, vuoto, "campo 'Provincia' non inserito."},
    RegolaCampo{Livello::Green, "txtNote", proprieta<&R::Note>, vuoto, "campo 'Note' non utilizzato."},
    RegolaCampo{Livello::Green, "txtTitolo", proprieta<&R::Titolo>, vuoto, "campo 'Titolo' non utilizzato."},
};

constexpr std::array professionista{
    RegolaCampo{Livello::Green, "txtNomeProfessionista", proprieta<&R::NomeProfessionista>, vuoto,
                "campo 'Professionista' non utilizzato."},
    RegolaCampo{Livello::Green, "txtIndirizzoProfessionista", proprieta<&R::IndirizzoProfessionista>, vuoto,
                "campo 'Indirizzo' non utilizzato."},
    RegolaCampo{Livello::Green, "txtCAPProfessionista", proprieta<&R::CAPProfessionista>, vuoto,
                "campo 'C.A.P.' non inserito."},
    RegolaCampo{Livello::Green, "txtCittaProfessionista", proprieta<&R::CittaProfessionista>, vuoto,
                "campo 'Città' non inserito."},
    RegolaCampo{Livello::Green, "txtProvinciaProfessionista", proprieta<&R::ProvinciaProfessionista>, vuoto,
                "campo 'Provincia' non inserito."},
    RegolaCampo{Livello::Green, "txtTelefonoProfessionista", proprieta<&R::TelefonoProfessionista>, vuoto,
                "campo 'Telefono' non inserito."},
    RegolaCampo{Livello::Green, "txtEMailProfessionista", proprieta<&R::EMailProfessionista>, vuoto,
                "campo 'Email' non inserito."},
};

constexpr std::array toponomastica{
    RegolaRamo{Livello::Yellow, titoliRegole::toponomastica, nomeDaSolo,
               "Nome Ramo {lettera} di default, si consiglia di rinominarlo per una più facile riconoscimento "
               "dell'accesso",
               "txtIngresso{n}"},
};

constexpr std::string_view campoDiametro = "txtDiametroInscritto";
constexpr std::string_view campoLarghezza = "txtLarghezzaIngresso";

// Between 18 and 19, 25 and 26, 40 and 50 metres nothing is said of heavy vehicles.
constexpr std::array geometria{
    RegolaRamo{Livello::Yellow, titoliRegole::geometria, [](const EsameRamo& e) { return diametro(e) <= 14.0F; },
               "Ramo '{ramo}', Diametro rotatoria non compatibile con D.M. 19.04.06 [14m<D<50m]- inferiore limite "
               "minimo.",
               campoDiametro},
    RegolaRamo{Livello::Yellow, titoliRegole::geometriaPesanti,
               [](const EsameRamo& e) { return diametro(e) <= 14.0F && pesanti(e); },
               "Sono presenti dei mezzi pesanti sul Ramo '{ramo}',diametro insufficiente.", campoDiametro},
    RegolaRamo{Livello::Yellow, titoliRegole::geometriaPesanti,
               [](const EsameRamo& e) { return diametro(e) > 14.0F && diametro(e) <= 18.0F && pesanti(e); },
               "Sono presenti dei mezzi pesanti sul Ramo '{ramo}',predisporre isola centrale completamente valicabile "
               "come previsto dal D.M. 19.04.06",
               campoDiametro},
    RegolaRamo{Livello::Yellow, titoliRegole::geometriaPesanti,
               [](const EsameRamo& e) { return diametro(e) >= 19.0F && diametro(e) <= 25.0F && pesanti(e); },
               "Sono presenti dei mezzi pesanti sul Ramo '{ramo}',predisporre fascia valicabile sull'isola centrale "
               "come previsto dal D.M. 19.04.06",
               campoDiametro},
    RegolaRamo{Livello::Yellow, titoliRegole::geometriaPesanti,
               [](const EsameRamo& e) { return diametro(e) >= 26.0F && diametro(e) <= 40.0F && pesanti(e); },
               "Sono presenti dei mezzi pesanti sul Ramo '{ramo}',predisporre fascia valicabile sull'isola centrale ai "
               "soli fini di leggibilità della traettoria di attraversamento (non richiesto dal D.M. 19.04.06)",
               campoDiametro},
    RegolaRamo{Livello::Yellow, titoliRegole::geometria, [](const EsameRamo& e) { return diametro(e) > 50.0F; },
               "Ramo '{ramo}', Diametro rotatoria non compatibile con D.M. 19.04.06 [14m<D<50m]- superiore limite "
               "massimo.",
               campoDiametro},
    RegolaRamo{Livello::Yellow, titoliRegole::geometria,
               [](const EsameRamo& e) { return e.ramo.LarghezzaIngresso() < 3.50F; },
               "Ramo '{ramo}', Larghezza ingresso non compatibile con D.M. 19.04.06 [Li<3.50m]- inferiore limite "
               "minimo.",
               campoLarghezza},
    RegolaRamo{Livello::Red, titoliRegole::geometria,
               [](const EsameRamo& e) { return e.ramo.LarghezzaIngresso() > 10.0F; },
               "Ramo '{ramo}', Larghezza ingresso eccessiva. Scarsa leggibilità dell'accesso. Verificare dati di "
               "input.",
               campoLarghezza},
    RegolaRamo{Livello::Red, titoliRegole::geometria,
               [](const EsameRamo& e) { return e.ramo.LunghezzaSvasatura() > 30.0F; },
               "Ramo '{ramo}', Lunghezza svasatura superiore a 30m. Scarso aumento di capacità. Verificare dati di "
               "input",
               "txtLungSvasatura"},
    RegolaRamo{Livello::Red, titoliRegole::geometria,
               [](const EsameRamo& e) { return e.ramo.SemiLarghezza() > 10.50F; },
               "Ramo '{ramo}', SemiLarghezza accesso > 10.50m. Se sono presenti più di 2 corsie in ingresso, "
               "condizione critica e non compatibile con D.M. 19.04.06.",
               "txtSemiLarghezza"},
};

constexpr std::string_view campoInizio = "txtFlussoTempo1";
constexpr std::string_view campoPicco = "txtFlussoTempo2";
constexpr std::string_view unaCorsia1900 =
    "Flusso totale entrante ingresso {ramo} > di 1900 veic/h. verificare. Una sola corsia di ingresso ({v}m)";
constexpr std::string_view eccessivo1900 =
    "Flusso totale entrante ingresso {ramo} > di 1900 veic/h. verificare. Attenzione carico di traffico eccessivo";
constexpr std::string_view unaCorsia3800 =
    "Flusso totale entrante ingresso {ramo} > di 3800 veic/h. verificare. Una sola corsia di ingresso ({v}m)";
constexpr std::string_view eccessivo3800 =
    "Flusso totale entrante ingresso {ramo} > di 3800 veic/h. verificare. Attenzione carico di traffico eccessivo";

constexpr std::array traffico{
    RegolaRamo{Livello::Red, titoliRegole::traffico,
               [](const EsameRamo& e) { return e.ramo.theDatiTraffico().FlussoTotale() < 1.0F; },
               "Non è stata defininita una curva tempo flusso valida per l'ingresso {ramo}, valori nulli", campoInizio},
    RegolaRamo{Livello::Red, titoliRegole::traffico,
               [](const EsameRamo& e) { return flussoAlto(e) && e.ramo.SemiLarghezza() <= 3.5F; }, unaCorsia1900,
               campoPicco},
    RegolaRamo{Livello::Red, titoliRegole::traffico,
               [](const EsameRamo& e) { return flussoAlto(e) && e.ramo.SemiLarghezza() > 3.5F; }, eccessivo1900,
               campoPicco},
    RegolaRamo{Livello::Red, titoliRegole::traffico,
               [](const EsameRamo& e) { return flussoAltissimo(e) && e.ramo.SemiLarghezza() < 7.0F; }, unaCorsia3800,
               campoPicco},
    RegolaRamo{Livello::Red, titoliRegole::traffico,
               [](const EsameRamo& e) { return flussoAltissimo(e) && e.ramo.SemiLarghezza() >= 7.0F; }, eccessivo3800,
               campoPicco},
};

constexpr std::string_view campoGriglia = "ctlGrid";

// A share of exactly 0.7 is in neither of the first two.
constexpr std::array matriceVeicoli{
    RegolaRamo{Livello::Yellow, titoliRegole::matrice,
               [](const EsameRamo& e) { return quotaDestra(e) > 0.4F && quotaDestra(e) < 0.7F; },
               "Attenzione. Più del 40% dei veicoli entranti da {ramo} eseguono la manovra di svolta a destra "
               ".Verificare possibilità di inserimento corsia preferenziale di svolta.",
               campoGriglia},
    RegolaRamo{Livello::Yellow, titoliRegole::matrice, [](const EsameRamo& e) { return quotaDestra(e) > 0.7F; },
               "Attenzione. Più del 70% dei veicoli entranti da {ramo} eseguono la manovra di svolta a destra "
               ".Verificare possibilità di inserimento corsia preferenziale di svolta.",
               campoGriglia},
    RegolaRamo{Livello::Yellow, titoliRegole::matrice, veicoliIncoerenti,
               "Attenzione. Veicoli in ingresso da ramo {ramo} non coerente con 'Flusso totale ingresso' ({somma} "
               "veic./h <>{totale}veic./h). Verificare.",
               campoGriglia},
};

constexpr std::array composizione{
    RegolaRamo{Livello::Red, titoliRegole::composizione,
               [](const EsameRamo& e) { return e.ramo.theComposizioneTraffico().Autovetture() < 60.0F; },
               "La percenetuale di autovetture sul Ramo '{ramo}' < 60%, si consiglia di controllare i dati inseriti",
               "txtAutoarticolati"},
    RegolaRamo{Livello::Yellow,
               titoliRegole::composizione,
               pesanti,
               "Sono presenti dei mezzi pesanti sul Ramo '{ramo}', verificare la geometria in relazione alle svolte ed "
               "alle aree spazzate. ",
               {},
               classePesante},
};

constexpr std::array composizioneSegmenti{
    RegolaRamo{Livello::Red, titoliRegole::composizione, categorieNulle,
               "Non è stato defininito alcun valore di composizione del traffico per l'ingresso {ramo}", campoGriglia},
};

}  // namespace

std::span<const RegolaCampo> regoleAnagrafica() {
    return anagrafica;
}

std::span<const RegolaCampo> regoleProfessionista() {
    return professionista;
}

std::span<const RegolaRamo> regoleToponomastica() {
    return toponomastica;
}

std::span<const RegolaRamo> regoleGeometria() {
    return geometria;
}

std::span<const RegolaRamo> regoleTraffico() {
    return traffico;
}

std::span<const RegolaRamo> regoleMatriceVeicoli() {
    return matriceVeicoli;
}

std::span<const RegolaRamo> regoleComposizione() {
    return composizione;
}

std::span<const RegolaRamo> regoleComposizioneSegmenti() {
    return composizioneSegmenti;
}

bool segmentoTroppoAmpio(std::int64_t finestra, double segmento) {
    return static_cast<double>(finestra) / minutiOra < oreMinime &&
           std::find(segmentiAmpi.begin(), segmentiAmpi.end(), segmento) != segmentiAmpi.end();
}

std::string messaggioRamo(const RegolaRamo& regola, const EsameRamo& esame) {
    return fmt::format(fmt::runtime(regola.messaggio), fmt::arg("ramo", esame.ramo.Descrizione()),
                       fmt::arg("lettera", letteraDi(esame)), fmt::arg("v", testoNumero(esame.ramo.SemiLarghezza())),
                       fmt::arg("somma", testoNumero(esame.somma)),
                       fmt::arg("totale", testoNumero(esame.ramo.theDatiTraffico().FlussoTotale())));
}

}  // namespace kelvo
