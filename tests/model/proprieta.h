#pragma once

#include <fmt/format.h>

#include <cstdint>
#include <string>
#include <utility>

#include "base/date.h"
#include "model/Rotonda.h"

/// Every plain property of the model, in the order in which its object declares it; written apart from the table that
/// the project file is read and written by, so that the one checks the other.
namespace kelvo::prove {

enum class Genere { dato, ora, giorno };

template <class O, class V, Genere G = Genere::dato>
struct P {
    const char* nome;
    V (O::*leggi)() const;
    void (O::*scrivi)(V);
};
using Testo = const std::string&;

template <class F>
void perOgniProprieta(const Rotonda* /*oggetto*/, F f) {
    using R = Rotonda;
    f(P<R, Testo>{"StatoAvanzamento", &R::StatoAvanzamento, &R::StatoAvanzamento});
    f(P<R, Testo>{"Localita", &R::Localita, &R::Localita});
    f(P<R, Testo>{"Comune", &R::Comune, &R::Comune});
    f(P<R, Testo>{"Provincia", &R::Provincia, &R::Provincia});
    f(P<R, Testo>{"NomeFile", &R::NomeFile, &R::NomeFile});
    f(P<R, float>{"ValorePercentile", &R::ValorePercentile, &R::ValorePercentile});
    f(P<R, bool>{"UsaPercentile", &R::UsaPercentile, &R::UsaPercentile});
    f(P<R, bool>{"OttimizzazioneGeometrica", &R::OttimizzazioneGeometrica, &R::OttimizzazioneGeometrica});
    f(P<R, bool>{"CondizioniNotturne", &R::CondizioniNotturne, &R::CondizioniNotturne});
    f(P<R, std::int16_t>{"TipoFlusso", &R::TipoFlusso, &R::TipoFlusso});
    f(P<R, std::int16_t>{"TipoMatriceSvolte", &R::TipoMatriceSvolte, &R::TipoMatriceSvolte});
    f(P<R, std::int16_t>{"TipoAnalisi", &R::TipoAnalisi, &R::TipoAnalisi});
    f(P<R, Testo>{"EMailProfessionista", &R::EMailProfessionista, &R::EMailProfessionista});
    f(P<R, Testo>{"TelefonoProfessionista", &R::TelefonoProfessionista, &R::TelefonoProfessionista});
    f(P<R, Testo>{"CittaProfessionista", &R::CittaProfessionista, &R::CittaProfessionista});
    f(P<R, Testo>{"CAPProfessionista", &R::CAPProfessionista, &R::CAPProfessionista});
    f(P<R, Testo>{"IndirizzoProfessionista", &R::IndirizzoProfessionista, &R::IndirizzoProfessionista});
    f(P<R, Testo>{"NomeProfessionista", &R::NomeProfessionista, &R::NomeProfessionista});
    f(P<R, Testo>{"ProvinciaProfessionista", &R::ProvinciaProfessionista, &R::ProvinciaProfessionista});
    f(P<R, DataOra, Genere::ora>{"SegmentoTempo", &R::SegmentoTempo, &R::SegmentoTempo});
    f(P<R, DataOra, Genere::ora>{"TempoFinale", &R::TempoFinale, &R::TempoFinale});
    f(P<R, DataOra, Genere::ora>{"TempoIniziale", &R::TempoIniziale, &R::TempoIniziale});
    f(P<R, Testo>{"Note", &R::Note, &R::Note});
    f(P<R, DataOra, Genere::giorno>{"Data", &R::Data, &R::Data});
    f(P<R, Testo>{"Titolo", &R::Titolo, &R::Titolo});
}

template <class F>
void perOgniProprieta(const Ramo* /*oggetto*/, F f) {
    f(P<Ramo, Testo>{"Descrizione", &Ramo::Descrizione, &Ramo::Descrizione});
    f(P<Ramo, float>{"LarghezzaIngresso", &Ramo::LarghezzaIngresso, &Ramo::LarghezzaIngresso});
    f(P<Ramo, float>{"SemiLarghezza", &Ramo::SemiLarghezza, &Ramo::SemiLarghezza});
    f(P<Ramo, float>{"LunghezzaSvasatura", &Ramo::LunghezzaSvasatura, &Ramo::LunghezzaSvasatura});
    f(P<Ramo, float>{"AngoloConflitto", &Ramo::AngoloConflitto, &Ramo::AngoloConflitto});
    f(P<Ramo, float>{"RaggioIngresso", &Ramo::RaggioIngresso, &Ramo::RaggioIngresso});
    f(P<Ramo, float>{"DiametroInscritto", &Ramo::DiametroInscritto, &Ramo::DiametroInscritto});
    f(P<Ramo, bool>{"AttraversamentoPedonale", &Ramo::AttraversamentoPedonale, &Ramo::AttraversamentoPedonale});
}

template <class F>
void perOgniProprieta(const DatiTraffico* /*oggetto*/, F f) {
    using D = DatiTraffico;
    f(P<D, float>{"FlussoMedio", &D::FlussoMedio, &D::FlussoMedio});
    f(P<D, float>{"FlussoOrario", &D::FlussoOrario, &D::FlussoOrario});
    f(P<D, float>{"FlussoTotale", &D::FlussoTotale, &D::FlussoTotale});
    f(P<D, float>{"FlussoTempo3", &D::FlussoTempo3, &D::FlussoTempo3});
    f(P<D, float>{"FlussoTempo2", &D::FlussoTempo2, &D::FlussoTempo2});
    f(P<D, float>{"FlussoTempo1", &D::FlussoTempo1, &D::FlussoTempo1});
    f(P<D, DataOra, Genere::ora>{"Tempo3", &D::Tempo3, &D::Tempo3});
    f(P<D, DataOra, Genere::ora>{"Tempo2", &D::Tempo2, &D::Tempo2});
    f(P<D, DataOra, Genere::ora>{"Tempo1", &D::Tempo1, &D::Tempo1});
}

template <class F>
void perOgniProprieta(const ComposizioneTraffico* /*oggetto*/, F f) {
    using C = ComposizioneTraffico;
    f(P<C, float>{"VEAutovetture", &C::VEAutovetture, &C::VEAutovetture});
    f(P<C, float>{"VEVeicoliDueRuote", &C::VEVeicoliDueRuote, &C::VEVeicoliDueRuote});
    f(P<C, float>{"VERoulotte", &C::VERoulotte, &C::VERoulotte});
    f(P<C, float>{"VECamper", &C::VECamper, &C::VECamper});
    f(P<C, float>{"VEPullman", &C::VEPullman, &C::VEPullman});
    f(P<C, float>{"VEAutotreni", &C::VEAutotreni, &C::VEAutotreni});
    f(P<C, float>{"VEAutoarticolati", &C::VEAutoarticolati, &C::VEAutoarticolati});
    f(P<C, float>{"Autovetture", &C::Autovetture, &C::Autovetture});
    f(P<C, float>{"VeicoliDueRuote", &C::VeicoliDueRuote, &C::VeicoliDueRuote});
    f(P<C, float>{"Roulotte", &C::Roulotte, &C::Roulotte});
    f(P<C, float>{"Camper", &C::Camper, &C::Camper});
    f(P<C, float>{"Pullman", &C::Pullman, &C::Pullman});
    f(P<C, float>{"Autotreni", &C::Autotreni, &C::Autotreni});
    f(P<C, float>{"Autoarticolati", &C::Autoarticolati, &C::Autoarticolati});
}

template <class F>
void perOgniProprieta(const AnalisiMarginale* /*oggetto*/, F f) {
    using A = AnalisiMarginale;
    f(P<A, Testo>{"DescrizioneCondizioniEsterne", &A::DescrizioneCondizioniEsterne, &A::DescrizioneCondizioniEsterne});
    f(P<A, double>{"CondizioniEsterne", &A::CondizioniEsterne, &A::CondizioniEsterne});
    f(P<A, bool>{"UsaCondizioniEsterne", &A::UsaCondizioniEsterne, &A::UsaCondizioniEsterne});
    f(P<A, double>{"AttraversamentoPedonale", &A::AttraversamentoPedonale, &A::AttraversamentoPedonale});
    f(P<A, bool>{"UsaSemiLarghezza", &A::UsaSemiLarghezza, &A::UsaSemiLarghezza});
    f(P<A, bool>{"UsaRaggioCurvatura", &A::UsaRaggioCurvatura, &A::UsaRaggioCurvatura});
    f(P<A, bool>{"UsaLunghezzaSvasatura", &A::UsaLunghezzaSvasatura, &A::UsaLunghezzaSvasatura});
    f(P<A, bool>{"UsaLarghezzaIngresso", &A::UsaLarghezzaIngresso, &A::UsaLarghezzaIngresso});
    f(P<A, bool>{"UsaDiametroInscritto", &A::UsaDiametroInscritto, &A::UsaDiametroInscritto});
    f(P<A, bool>{"UsaAngoloConflitto", &A::UsaAngoloConflitto, &A::UsaAngoloConflitto});
    f(P<A, double>{"LarghezzaIngresso", &A::LarghezzaIngresso, &A::LarghezzaIngresso});
    f(P<A, double>{"SemiLarghezza", &A::SemiLarghezza, &A::SemiLarghezza});
    f(P<A, double>{"LungSvasatura", &A::LungSvasatura, &A::LungSvasatura});
    f(P<A, double>{"AngoloConflitto", &A::AngoloConflitto, &A::AngoloConflitto});
    f(P<A, double>{"RaggioCurvatura", &A::RaggioCurvatura, &A::RaggioCurvatura});
    f(P<A, double>{"DiametroInscritto", &A::DiametroInscritto, &A::DiametroInscritto});
}

/// Hands out values that differ from each other and from every default, and that no short decimal text tells exactly.
class ValoriStrani {
public:
    template <class O, Genere G>
    std::string nuovo(const P<O, Testo, G>& /*p*/, const O& /*oggetto*/) {
        return fmt::format("valore {} \"àè€\" \\ 😀\n\t\x01 fine", ++n_);
    }
    template <class O>
    bool nuovo(const P<O, bool>& p, const O& oggetto) {
        return !(oggetto.*p.leggi)();
    }
    template <class O>
    std::int16_t nuovo(const P<O, std::int16_t>& /*p*/, const O& /*oggetto*/) {
        return static_cast<std::int16_t>(++n_ % 2 == 0 ? -32768 + n_ : 32767 - n_);
    }
    template <class O>
    float nuovo(const P<O, float>& /*p*/, const O& /*oggetto*/) {
        return singolo();
    }
    template <class O>
    double nuovo(const P<O, double>& /*p*/, const O& /*oggetto*/) {
        ++n_;
        return (n_ % 3 == 0 ? -1.0e-17 : 1.0e9) * n_ / 7.0;
    }
    template <class O>
    DataOra nuovo(const P<O, DataOra, Genere::ora>& /*p*/, const O& /*oggetto*/) {
        ++n_;
        return oraDelGiorno(n_ % 30, (n_ * 7) % 60, n_ % 2 == 0 ? 0 : n_ % 60);
    }
    template <class O>
    DataOra nuovo(const P<O, DataOra, Genere::giorno>& /*p*/, const O& /*oggetto*/) {
        ++n_;
        return giornoCalendario(1900 + n_ % 300, 1 + n_ % 12, 1 + n_ % 28);
    }
    float singolo() {
        ++n_;
        return (n_ % 4 == 0 ? -1.0e-8F : 1.1F) * static_cast<float>(n_) / 3.0F;
    }

private:
    int n_ = 0;
};

template <class O>
void riempiProprieta(O& oggetto, ValoriStrani& valori) {
    perOgniProprieta(&oggetto, [&](const auto& p) { (oggetto.*p.scrivi)(valori.nuovo(p, oggetto)); });
}

/// Gives every property of the project a value of its own: legs, children, matrix and segments included.
inline void riempi(Rotonda& rotonda, std::int16_t rami, std::int16_t segmenti) {
    ValoriStrani valori;
    rotonda.Clear();
    rotonda.NumeroRami(rami);
    riempiProprieta(rotonda, valori);
    for (std::int16_t i = 1; i <= rami; ++i) {
        for (std::int16_t j = 1; j <= rami; ++j) {
            rotonda.MatriceSvolte(valori.singolo(), i, j);
        }
        Ramo& ramo = rotonda.AddRamo(std::to_string(i) + "Ramo");
        riempiProprieta(ramo, valori);
        ramo.theDatiTraffico().NumSegmentiTempo(segmenti);
        riempiProprieta(ramo.theDatiTraffico(), valori);
        ramo.theComposizioneTraffico().NumSegmentiTempo(segmenti);
        riempiProprieta(ramo.theComposizioneTraffico(), valori);
        riempiProprieta(ramo.theAnalisiMarginale(), valori);
        for (std::int16_t s = 0; s < segmenti; ++s) {
            ramo.theDatiTraffico().FlussoSegmento(valori.singolo(), s, 0);
            for (std::int16_t c = 0; c < numeroClassi; ++c) {
                ramo.theComposizioneTraffico().CategoriaSegmento(valori.singolo(), s, c);
            }
        }
    }
}

}  // namespace kelvo::prove
