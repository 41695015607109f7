#include "shell/registroFinestre.h"

#include <memory>

#include "cad/frmEsportaDXF.h"
#include "checkup/frmANALIZZATORE.h"
#include "input/frmAnalisiMarginale.h"
#include "input/frmComposizioneTraffico.h"
#include "input/frmComposizioneTrafficoST.h"
#include "input/frmDatiTraffico.h"
#include "input/frmDatiTrafficoST.h"
#include "input/frmMatriceSvolte.h"
#include "input/frmParametriRamo.h"
#include "input/frmTempoModellazione.h"
#include "input/frmToponomasticaIntersezione.h"
#include "reports/frmOPZrelazione.h"
#include "results/frmAnteprimaTesto.h"
#include "results/frmCapacitaCodeRitardi.h"
#include "results/frmCapacitaCodeRitardiRamo.h"
#include "results/frmCapacitaUltima.h"
#include "results/frmConfronti.h"
#include "results/frmDX.h"
#include "results/frmRisultatiAnalisiMarginale.h"
#include "shell/frmAnagraficaRotonda.h"
#include "shell/frmCommittenteProfessionista.h"
#include "shell/frmEmptyForm.h"
#include "shell/frmGoogle.h"
#include "shell/frmInputNumeroRami.h"
#include "shell/frmOpzioni.h"

namespace kelvo {

namespace {

template <class F>
std::unique_ptr<Finestra> crea(const Contorno& contorno) {
    return std::make_unique<F>(contorno);
}

constexpr const char* finestraRelazioni = "frmOPZrelazione";

/// The window of a class, if it lives; else null.
template <class F>
F* viva(const FabbricaFinestre& finestre, std::string_view nome) {
    return dynamic_cast<F*>(finestre.viva(nome));
}

/// What the result windows are handed. Their reports are made by the window of the reports.
ServiziRisultati perRisultati(const ServiziFinestre& servizi, FabbricaFinestre& finestre, const Contorno& contorno) {
    const auto relazioni = [&finestre, contorno]() -> frmOPZrelazione& {
        return dynamic_cast<frmOPZrelazione&>(finestre.finestra(finestraRelazioni, contorno));
    };
    ServiziRisultati risultati{.documenti = servizi.documenti, .finestre = servizi.collegate};
    risultati.foglio = servizi.foglio;
    risultati.stampa = servizi.stampa;
    risultati.relazione = [relazioni, &collegate = servizi.collegate] { collegate.mostra(relazioni()); };
    risultati.relazioneGrafica = [relazioni](const RelazioneGrafica& r) { relazioni().compilaGrafico(r); };
    risultati.relazioneTotale = [relazioni] { relazioni().compilaTotale(); };
    return risultati;
}

template <class F>
CreatoreFinestra creaRisultati(const ServiziFinestre& servizi, FabbricaFinestre& finestre) {
    return [servizi, &finestre](const Contorno& contorno) {
        return std::make_unique<F>(contorno, perRisultati(servizi, finestre, contorno));
    };
}

/// The comparison and the look of the charts are asked of their windows, where these live.
std::unique_ptr<Finestra> creaRelazioni(const Contorno& contorno, const ServiziFinestre& servizi,
                                        const FabbricaFinestre& finestre) {
    ServiziOPZrelazione suoi{.documenti = servizi.documenti, .finestre = servizi.collegate};
    suoi.attesa = servizi.attesa;
    suoi.pdf = servizi.pdf;
    suoi.corsiaDX = [&finestre] {
        auto* corsie = viva<frmDX>(finestre, "frmDX");
        return corsie == nullptr ? std::optional<AnalisiCorsiaDX>{} : corsie->perRelazione();
    };
    suoi.grafici = [&finestre] {
        const auto* ingresso = viva<frmCapacitaCodeRitardiRamo>(finestre, "frmCapacitaCodeRitardiRamo");
        return ingresso == nullptr ? OpzioniGrafici{} : ingresso->opzioni();
    };
    return std::make_unique<frmOPZrelazione>(contorno, suoi);
}

/// Shows texts that the system has no program for, over the main window.
std::function<void(const std::string&, const std::string&)> visoreTesti(const Contorno& contorno,
                                                                        FinestreCollegate& collegate) {
    auto visore = std::make_shared<frmAnteprimaTesto>(contorno);
    visore->allaChiusura = [&collegate, finestra = visore.get()] { collegate.chiudi(*finestra); };
    return [visore, &collegate](const std::string& percorso, const std::string& testo) {
        visore->mostra(percorso, testo);
        collegate.sovrapponi(*visore);
    };
}

std::unique_ptr<Finestra> creaAnalizzatore(const Contorno& contorno, const ServiziFinestre& servizi) {
    FinestreCollegate& collegate = servizi.collegate;
    return std::make_unique<frmANALIZZATORE>(
        contorno, frmANALIZZATORE::Servizi{.documenti = servizi.documenti,
                                           .campi = servizi.campi,
                                           .mostraMessaggio =
                                               [&collegate](frmCheckUpMessaggio& messaggio) {
                                                   messaggio.allaChiusura = [&] { collegate.chiudi(messaggio); };
                                                   collegate.sovrapponi(messaggio);
                                               },
                                           .mostraTesto = visoreTesti(contorno, collegate),
                                           .stampa = servizi.stampa});
}

}  // namespace

void registraFinestre(FabbricaFinestre& finestre, const ServiziFinestre& servizi) {
    finestre.registra("frmEmptyForm", crea<frmEmptyForm>);
    finestre.registra("frmInputNumeroRami", crea<frmInputNumeroRami>);
    finestre.registra("frmAnagraficaRotonda", crea<frmAnagraficaRotonda>);
    finestre.registra("frmCommittenteProfessionista", crea<frmCommittenteProfessionista>);
    finestre.registra("frmTempoModellazione", crea<frmTempoModellazione>);
    finestre.registra("frmToponomasticaIntersezione", crea<frmToponomasticaIntersezione>);
    finestre.registra("frmAnalisiMarginale", crea<frmAnalisiMarginale>);
    finestre.registra("frmDatiTraffico", crea<frmDatiTraffico>);
    finestre.registra("frmDatiTrafficoST", [servizi](const Contorno& contorno) {
        return std::make_unique<frmDatiTrafficoST>(contorno, &servizi.anteprima);
    });
    finestre.registra("frmComposizioneTraffico", crea<frmComposizioneTraffico>);
    finestre.registra("frmComposizioneTrafficoST", [servizi](const Contorno& contorno) {
        return std::make_unique<frmComposizioneTrafficoST>(contorno, &servizi.anteprima);
    });
    finestre.registra("frmOpzioni", crea<frmOpzioni>);
    finestre.registra("frmMatriceSvolte", [servizi](const Contorno& contorno) {
        return std::make_unique<frmMatriceSvolte>(contorno, servizi.anteprima, servizi.stampa);
    });
    finestre.registra("frmParametriRamo", [servizi](const Contorno& contorno) {
        return std::make_unique<frmParametriRamo>(
            contorno, frmParametriRamo::Servizi{servizi.documenti, servizi.anteprima, servizi.stampa});
    });
    finestre.registra("frmCapacitaUltima", creaRisultati<frmCapacitaUltima>(servizi, finestre));
    finestre.registra("frmCapacitaCodeRitardi", creaRisultati<frmCapacitaCodeRitardi>(servizi, finestre));
    finestre.registra("frmCapacitaCodeRitardiRamo", creaRisultati<frmCapacitaCodeRitardiRamo>(servizi, finestre));
    finestre.registra("frmDX", creaRisultati<frmDX>(servizi, finestre));
    finestre.registra("frmRisultatiAnalisiMarginale", creaRisultati<frmRisultatiAnalisiMarginale>(servizi, finestre));
    finestre.registra("frmConfronti", [servizi, &finestre](const Contorno& contorno) {
        return std::make_unique<frmConfronti>(contorno, perRisultati(servizi, finestre, contorno), servizi.cronometro);
    });
    finestre.registra(finestraRelazioni, [servizi, &finestre](const Contorno& contorno) {
        return creaRelazioni(contorno, servizi, finestre);
    });
    finestre.registra("frmGoogle", [servizi](const Contorno& contorno) {
        return std::make_unique<frmGoogle>(contorno, servizi.documenti, servizi.campi);
    });
    finestre.registra("frmANALIZZATORE",
                      [servizi](const Contorno& contorno) { return creaAnalizzatore(contorno, servizi); });
    finestre.registra("frmEsportaDXF", crea<frmEsportaDXF>);
}

}  // namespace kelvo
