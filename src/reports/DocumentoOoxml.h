#pragma once

#include <memory>
#include <vector>

#include "reports/DocumentoRelazione.h"
#include "reports/Pacchetto.h"
#include "reports/blocchi.h"
#include "reports/segnalibri.h"
#include "reports/testo.h"

namespace kelvo::ooxml {

/// A document in the format of .docx files.
class DocumentoOoxml final : public DocumentoRelazione {
public:
    /// Takes the bytes of a template. Answers an empty text, or in Italian why it cannot be taken.
    std::string apri(const std::string& dati);

    int Sostituisci(std::string_view cercato, std::string_view nuovo) override;
    int Sostituisci(std::span<const Sostituzione> coppie) override;
    int Sbianca(std::span<const std::string_view> elenco) override;
    bool HaSegnalibro(std::string_view nome) const override;
    void SelezionaSegnalibro(std::string_view nome) override;
    void SelezionaFine() override;
    bool SelezioneInTabella() const override;
    void CellaSuccessiva() override;
    void ScriviTesto(std::string_view testo) override;
    void EliminaSelezione() override;
    void InserisciParagrafo(const ParagrafoRelazione& paragrafo) override;
    void InserisciTabella(const TabellaRelazione& tabella) override;
    void InserisciImmagine(const ImmagineRelazione& immagine) override;
    std::string Contenuto() override;
    void Salva(SistemaFile& sistema, const std::string& percorso) override;

private:
    /// A text of its own: the body, a header, a footer, the notes.
    struct Storia {
        std::string nome;
        pugi::xml_document xml;
        pugi::xml_node radice() const { return xml.document_element(); }
    };
    enum class Genere {
        nessuna,
        segnalibro,  ///< what the bookmark spans
        cella,       ///< the cell
        corsa,       ///< behind the run
        blocchi,     ///< in front of the paragraph `nodo`, where blocks are put
    };
    /// What is selected. `nodo` stands in `storia`.
    struct Selezione {
        Genere genere = Genere::nessuna;
        Storia* storia = nullptr;
        Segnalibro segnalibro{};
        pugi::xml_node nodo{};
        bool inserito = false;  ///< blocks were put in front of `nodo`
    };

    std::string apriStoria(const std::string& nome);
    int sostituisciOvunque(const std::vector<Coppia>& coppie);
    Stili stili() const { return Stili(stili_.document_element()); }
    unsigned idDisegno();
    void seleziona(const Selezione& nuova);
    void chiudiBlocchi();
    void scriviNellaCella(pugi::xml_node cella, const std::string& testo);
    void scriviAlSegnalibro(const std::string& testo);
    pugi::xml_node paragrafoScelto();
    pugi::xml_node postoBlocchi();
    pugi::xml_node nuovoBlocco(const char* nome);

    Pacchetto pacchetto_;
    std::vector<std::unique_ptr<Storia>> storie_;
    pugi::xml_document stili_;
    Selezione selezione_;
    unsigned ultimoDisegno_ = 0;
};

}  // namespace kelvo::ooxml
