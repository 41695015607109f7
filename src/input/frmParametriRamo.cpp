#include "input/frmParametriRamo.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "app/titoli.h"
#include "base/guasto.h"
#include "input/frmPreviewRami.h"
#include "shell/servizi/nomiPermessi.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Geometria";
constexpr const char* pedonale = "Attraversamento pedonale";
constexpr const char* decreto = "D.M. 19.04.06";
constexpr const char* ingressoMinore =
    "Il valore del campo 'Larghezza ingresso' deve essere sempre maggiore del campo 'Semilarghezza accesso'";
constexpr const char* accessoMaggiore =
    "Il valore del campo 'Semilarghezza accesso' deve essere sempre minore del campo 'Larghezza ingresso'";
constexpr const char* parametri = "Parametri geometrici ingresso";
constexpr const char* flussi = "Flussi interferenti";
constexpr const char* capacita = "Relazione di capacità";
constexpr const char* descrizione = "Descrizione parametro geometrico";
constexpr const char* unitaFlussi = "flussi in veic/h";
constexpr const char* nonAperto = "Impossibile aprire {}";
constexpr const char* senzaValore = "-";
}  // namespace testi

constexpr const char* paginaNome = "NomeRamo.htm";
constexpr std::string_view percorsoDecreto = "\\UserGuide\\DM19-04-06.pdf";
constexpr std::array<std::string_view, 6> nomiNote{"lblNotaLarghezzaIngresso", "lblNotaSemiLarghezza",
                                                   "lblNotaLungSvasatura",     "lblNotaAngoloConflitto",
                                                   "lblNotaRaggioCurvatura",   "lblNotaDiametroInscritto"};
constexpr std::array<std::string_view, 6> nomiEtichette{"lblLarghezzaIngresso", "lblSemiLarghezza",
                                                        "lblLungSvasatura",     "lblAngoloConflitto",
                                                        "lblRaggioCurvatura",   "lblDiametroInscritto"};

/// "Ingresso A:"
std::string etichettaIngresso(int ramo) {
    return fmt::format("Ingresso {}:", pianta::lettera(ramo));
}

std::array<Etichetta, 6> etichetteMisure() {
    const auto una = [](std::size_t i) {
        return Etichetta{std::string{nomiEtichette[i]}, std::string{misureIngresso[i].campo.nome}};
    };
    return {una(0), una(1), una(2), una(3), una(4), una(5)};
}

std::array<Etichetta, 6> etichetteNote() {
    const auto una = [](std::size_t i) { return Etichetta{std::string{nomiNote[i]}}; };
    return {una(0), una(1), una(2), una(3), una(4), una(5)};
}

const MisuraIngresso& misura(pianta::Misura quale) {
    return misureIngresso[static_cast<std::size_t>(quale)];
}

std::string tagMisura(pianta::Misura quale) {
    return tagNumerico(misura(quale).campo);
}

/// The capacity of the line for a circulating flow, veic/h; above 0 for all measures that the fields take.
double capacita(const Ramo& ramo, double circolante) {
    return ramo.F() - ramo.Fc() * circolante;
}

}  // namespace

frmParametriRamo::frmParametriRamo(const Contorno& contorno, const Servizi& servizi)
    : FinestraRamo(contorno, "frmParametriRamo", testi::didascalia),
      CartaDati(*this, contorno, servizi.stampa),
      frParametri("frParametri", testi::parametri, {}),
      frFlussi("frFlussi", testi::flussi, {}),
      frCapacita("frCapacita", testi::capacita, {}),
      frDescrizione("frDescrizione", testi::descrizione, {}),
      lblDescrizioneRamo("lblDescrizioneRamo", etichettaIngresso(1)),
      txtLarghezzaIngresso("txtLarghezzaIngresso", tBox::maskedit, tagMisura(pianta::Misura::larghezzaIngresso)),
      txtSemiLarghezza("txtSemiLarghezza", tBox::maskedit, tagMisura(pianta::Misura::semiLarghezza)),
      txtLungSvasatura("txtLungSvasatura", tBox::maskedit, tagMisura(pianta::Misura::lunghezzaSvasatura)),
      txtAngoloConflitto("txtAngoloConflitto", tBox::maskedit, tagMisura(pianta::Misura::angoloConflitto)),
      txtRaggioCurvatura("txtRaggioCurvatura", tBox::maskedit, tagMisura(pianta::Misura::raggioIngresso)),
      txtDiametroInscritto("txtDiametroInscritto", tBox::maskedit, tagMisura(pianta::Misura::diametro)),
      chkAttraversamentoPedonale("chkAttraversamentoPedonale", testi::pedonale),
      cmdDM("cmdDM", testi::decreto),
      ctlPianta("ctlPianta", [this] { return soggettoPianta(); }),
      ctlPicture("ctlPicture", std::string{figuraVuota}),
      lblMisure(etichetteMisure()),
      lblNote(etichetteNote()),
      valori{{{"k", Etichetta{"lblK"}},
              {"tD", Etichetta{"lblTd"}},
              {"S", Etichetta{"lblS"}},
              {"x2 [m]", Etichetta{"lblX2"}},
              {"Intercetta", Etichetta{"lblF"}},
              {"Pendenza", Etichetta{"lblFc"}},
              {"Capacità con Qc = 0", Etichetta{"lblQ0"}},
              {"Capacità con Qc = 500", Etichetta{"lblQ500"}},
              {"Capacità con Qc = 1000", Etichetta{"lblQ1000"}}}},
      lblUnita("lblUnita", testi::unitaFlussi),
      servizi_(servizi) {
    const auto caselle = campi();
    std::vector<Controllo*> ordine{&lblDescrizioneRamo, &txtDescrizioneRamo};
    for (std::size_t i = 0; i < caselle.size(); ++i) {
        ordine.insert(ordine.end(), {&lblMisure[i], caselle[i], &lblNote[i]});
    }
    ordine.insert(ordine.end(), {&lblUnita, &chkAttraversamentoPedonale, &cmdDM, &ctlPianta});
    conArchivio();
    ordina(ordine);
    for (std::size_t i = 0; i < caselle.size(); ++i) {
        preparaNumerico(*caselle[i], misureIngresso[i].campo);
        caselle[i]->paginaAiuto = misureIngresso[i].paginaAiuto;
        caselle[i]->dopoTasto = [this] { aggiorna(); };
        caselle[i]->dopoUscita = [this, i] { dopoUscita(i); };
    }
    txtLarghezzaIngresso.controllo = [this] { return controllaCoppia(txtLarghezzaIngresso); };
    txtSemiLarghezza.controllo = [this] { return controllaCoppia(txtSemiLarghezza); };
    txtDescrizioneRamo.paginaAiuto = paginaNome;
    txtDescrizioneRamo.controllo = [this] { return controllaNomeRamo(txtDescrizioneRamo.testo()); };
    txtDescrizioneRamo.dopoUscita = [this] { confronta(); };
    chkAttraversamentoPedonale.alClic = [this] {
        confronta();
        geometriaMutata_.emit();
    };
    cmdDM.allaPressione = [this] { apriDecreto(); };
    ctlToolbar.aggiungi({"DM", "D.M.", "Apre il D.M. 19.04.06", "DM", true});
    fuocoMutato().connect([this] { fuocoSpostato(); });
    geometriaMutata_.connect([this] { ctlPianta.mutata(); });
}

std::array<tBox*, 6> frmParametriRamo::campi() {
    return {&txtLarghezzaIngresso, &txtSemiLarghezza,   &txtLungSvasatura,
            &txtAngoloConflitto,   &txtRaggioCurvatura, &txtDiametroInscritto};
}

std::array<const tBox*, 6> frmParametriRamo::campi() const {
    return {&txtLarghezzaIngresso, &txtSemiLarghezza,   &txtLungSvasatura,
            &txtAngoloConflitto,   &txtRaggioCurvatura, &txtDiametroInscritto};
}

void frmParametriRamo::legata() {
    lblDescrizioneRamo.testo(etichettaIngresso(indiceRamo()));
}

void frmParametriRamo::ReadData() {
    txtDescrizioneRamo.testo(ramo().Descrizione());
    const auto caselle = campi();
    for (std::size_t i = 0; i < caselle.size(); ++i) {
        mostraNumero(*caselle[i], (ramo().*misureIngresso[i].leggi)(), misureIngresso[i].campo.formato);
    }
    chkAttraversamentoPedonale.spuntata(ramo().AttraversamentoPedonale());
    coppia_ = {ramo().LarghezzaIngresso(), ramo().SemiLarghezza()};
    DatiAllineati(true);
    aggiorna();
}

void frmParametriRamo::SaveData() {
    gestisci("frmParametriRamo:SaveData", [this] {
        // A wrong layout in the configuration keeps no measure from being written.
        gestisci("frmParametriRamo:SaveData", [this] { app().comune.LeggiOpzExplorer(); });
        if (!convalida()) {
            return;
        }
        if (txtDescrizioneRamo.modificato()) {
            ramo().Descrizione(txtDescrizioneRamo.testo());
            txtDescrizioneRamo.salvato();
        }
        const auto caselle = campi();
        for (std::size_t i = 0; i < caselle.size(); ++i) {
            if (caselle[i]->modificato()) {
                (ramo().*misureIngresso[i].scrivi)(singoloDi(*caselle[i]));
                mostraNumero(*caselle[i], (ramo().*misureIngresso[i].leggi)(), misureIngresso[i].campo.formato);
            }
        }
        ramo().AttraversamentoPedonale(chkAttraversamentoPedonale.spuntata());
        DatiAllineati(true);
        mostraNome();
        cornice().testoNodi(ramo().Key(), ramo().Descrizione());
    });
}

bool frmParametriRamo::valido(std::size_t misura) const {
    const tBox& campo = *campi()[misura];
    std::string numero = campo.testo();
    std::replace(numero.begin(), numero.end(), ',', '.');
    return campo.regole().ammette(numero) && leggiSingolo(campo.testo()).has_value();
}

float frmParametriRamo::valoreMostrato(std::size_t misura) const {
    const tBox& campo = *campi()[misura];
    const bool scritto = campo.modificato() && valido(misura);
    return scritto ? singoloDi(campo) : (ramo().*misureIngresso[misura].leggi)();
}

Geometria frmParametriRamo::geometriaMostrata() const {
    Geometria g{.e = valoreMostrato(0),
                .v = valoreMostrato(1),
                .l = valoreMostrato(2),
                .phi = valoreMostrato(3),
                .r = valoreMostrato(4),
                .D = valoreMostrato(5)};
    if (g.v >= g.e) {
        // Half typed: a pair that the fields will refuse is not shown.
        g.e = coppia_[0];
        g.v = coppia_[1];
    }
    return g;
}

pianta::DatiPianta frmParametriRamo::piantaMostrata() const {
    pianta::DatiPianta dati = pianta::datiPianta(app().theRotonda());
    const Geometria g = geometriaMostrata();
    pianta::DatiRamo& questo = dati.rami.at(static_cast<std::size_t>(indiceRamo()) - 1);
    questo.larghezzaIngresso = g.e;
    questo.semiLarghezza = g.v;
    questo.lunghezzaSvasatura = g.l;
    questo.angoloConflitto = g.phi;
    questo.raggioIngresso = g.r;
    questo.diametroInscritto = g.D;
    questo.attraversamentoPedonale = chkAttraversamentoPedonale.spuntata();
    return dati;
}

std::optional<pianta::Misura> frmParametriRamo::misuraInUso() const {
    const auto caselle = campi();
    const auto trovata = std::find(caselle.begin(), caselle.end(), fuoco());
    if (trovata == caselle.end()) {
        return fuoco() == &ctlPianta ? ultimaMisura_ : std::nullopt;
    }
    return static_cast<pianta::Misura>(trovata - caselle.begin());
}

DocumentoPagine::Pianta frmParametriRamo::soggettoPianta() const {
    if (indiceRamo() == 0) {
        return {};  // the window has not come up yet
    }
    return piantaDaMostrare(
        piantaMostrata(),
        pianta::OpzioniPianta{.vista = pianta::Vista::primoPiano, .ramo = indiceRamo(), .misura = misuraInUso()});
}

CartaDati::Blocchi frmParametriRamo::blocchiSuCarta() const {
    using D = DocumentoPagine;
    constexpr double quota = 0.55;  // on one page with the tables
    D::Tabella misure{.colonne = {{testi::parametri, 3.0, AllineamentoCella::sinistra}, {"Valore"}, {"Unità"}},
                      .righe = {}};
    const auto caselle = campi();
    for (std::size_t i = 0; i < caselle.size(); ++i) {
        const CampoNumerico& campo = misureIngresso[i].campo;
        misure.righe.push_back(
            {{.testo = std::string{campo.nome}}, {.testo = caselle[i]->testo()}, {.testo = std::string{campo.unita}}});
    }
    misure.righe.push_back(
        {{.testo = testi::pedonale}, {.testo = chkAttraversamentoPedonale.spuntata() ? "sì" : "no"}, {}});
    D::Tabella calcolate{.colonne = {{testi::capacita, 3.0, AllineamentoCella::sinistra}, {"Valore"}}, .righe = {}};
    for (const Valore& valore : valori) {
        calcolate.righe.push_back({{.testo = std::string{valore.nome}}, {.testo = valore.etichetta.testo()}});
    }
    return {D::Figura{.contenuto = soggettoPianta(), .larghezza = quota, .forma = 1.0}, std::move(misure),
            std::move(calcolate), D::Paragrafo{.testo = lblUnita.testo(), .quieto = true}};
}

EsitoUscita frmParametriRamo::controllaCoppia(const tBox& campo) const {
    if (mascheraVuota(campo)) {
        return EsitoUscita::bene();
    }
    // Two widths that nobody typed count as the project holds them, which may be more than the decimals that are shown.
    const bool scritte = txtLarghezzaIngresso.modificato() || txtSemiLarghezza.modificato();
    const auto numero = [&](std::size_t i) {
        return scritte ? singoloDi(*campi()[i]) : (ramo().*misureIngresso[i].leggi)();
    };
    if (numero(1) < numero(0)) {
        return EsitoUscita::bene();
    }
    const char* testo = &campo == &txtLarghezzaIngresso ? testi::ingressoMinore : testi::accessoMaggiore;
    if (&campo == &txtSemiLarghezza && txtLarghezzaIngresso.fallito() && !haFuoco(campo)) {
        return EsitoUscita::rifiuto(testo);  // one box tells of the pair
    }
    return EsitoUscita::rifiuto(MessaggioCampo{testo, titoli::attenzione, Icona::esclamazione});
}

void frmParametriRamo::dopoUscita(std::size_t misura) {
    tBox& campo = *campi()[misura];
    if (mascheraVuota(campo)) {
        campo.modifica(formatta(0.0, misureIngresso[misura].campo.formato));  // what an empty mask counts as
        aggiorna();
    }
    confronta();
}

void frmParametriRamo::confronta() {
    bool uguali = txtDescrizioneRamo.testo() == ramo().Descrizione() &&
                  chkAttraversamentoPedonale.spuntata() == ramo().AttraversamentoPedonale();
    const auto caselle = campi();
    for (std::size_t i = 0; i < caselle.size(); ++i) {
        uguali = uguali && (!caselle[i]->modificato() ||
                            (valido(i) && singoloDi(*caselle[i]) == (ramo().*misureIngresso[i].leggi)()));
    }
    if (!uguali) {
        DatiAllineati(false);
    }
}

void frmParametriRamo::aggiorna() {
    if (valoreMostrato(1) < valoreMostrato(0)) {
        coppia_ = {valoreMostrato(0), valoreMostrato(1)};
    }
    const Geometria g = geometriaMostrata();
    for (std::size_t i = 0; i < misureIngresso.size(); ++i) {
        lblNote[i].testo(notaConsigliato(misureIngresso[i], valoreMostrato(i)));
        lblNote[i].visibile(!lblNote[i].testo().empty());
    }
    mostraValori(g);
    geometriaMutata_.emit();
}

void frmParametriRamo::mostraValori(const Geometria& g) {
    Revisione scarto;
    Ramo prova(scarto, ramo().Key(), ramo().Descrizione());
    try {
        parametriCapacita(prova, g);
    } catch (const Guasto&) {
        // Measures that the relation cannot take have no figures; the calculation will say why.
        for (Valore& valore : valori) {
            valore.etichetta.testo(testi::senzaValore);
        }
        return;
    }
    const std::array<std::string, 9> figure{formatta(prova.K(), "0.0000"),
                                            formatta(prova.Td(), "0.0000"),
                                            formatta(prova.S(), "#0.000"),
                                            formatta(prova.X2(), "#0.00"),
                                            formatta(prova.F(), "#0"),
                                            formatta(prova.Fc(), "0.0000"),
                                            formatta(capacita(prova, 0.0), "#0"),
                                            formatta(capacita(prova, 500.0), "#0"),
                                            formatta(capacita(prova, 1000.0), "#0")};
    for (std::size_t i = 0; i < figure.size(); ++i) {
        valori[i].etichetta.testo(figure[i]);
    }
}

void frmParametriRamo::fuocoSpostato() {
    const auto uso = misuraInUso();
    ultimaMisura_ = uso;
    ctlPicture.risorsa(std::string{uso ? misura(*uso).figura : figuraVuota});
    if (!uso && fuoco() != &txtDescrizioneRamo) {
        ctlHelp.pagina(std::string{paginaAiutoVuota});
    }
    geometriaMutata_.emit();
}

void frmParametriRamo::altroTasto(const std::string& chiave) {
    if (chiave == "DM") {
        apriDecreto();
    }
}

void frmParametriRamo::apriDecreto() {
    const std::string percorso = app().theAmbiente.PercorsoProgramma(std::string{percorsoDecreto});
    if (!servizi_.documenti.apri("\"" + percorso + "\"")) {
        messaggio(fmt::format(testi::nonAperto, percorso), titoli::attenzione, Icona::esclamazione);
    }
}

void frmParametriRamo::Archivio() {
    gestisci("frmParametroRamo:Archivo", [this] {
        frmPreviewRami anteprima(contorno());
        if (!servizi_.dialogo.apri(AnteprimaProgetto::richiesta(app().theAmbiente.CartellaScritta()), anteprima)) {
            return;
        }
        const auto caselle = campi();
        for (std::size_t i = 0; i < caselle.size(); ++i) {
            const float valore = anteprima.scelti()[i];
            // Taken as it is even where the field shows the same two decimals.
            caselle[i]->testo({});
            caselle[i]->modifica(testoNumero(valore));
        }
        confronta();
        aggiorna();
    });
}

}  // namespace kelvo
