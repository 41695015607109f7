#pragma once

#include <cmath>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"
#include "base/file.h"
#include "model/BackupTraffico.h"
#include "model/Ramo.h"
#include "model/Revisione.h"

namespace kelvo {

/// Least and largest number of legs.
inline constexpr std::int16_t minimoRami = 3;
inline constexpr std::int16_t massimoRami = 7;

/// A square matrix of singles, rows of origin by columns of destination, indices from 0.
using Matrice = std::vector<std::vector<float>>;

/// The legs, in order.
class RaccoltaRami {
public:
    std::int16_t Count() const { return static_cast<std::int16_t>(rami_.size()); }
    /// The leg at a position, from 1; fault 9 if there is none.
    Ramo& Item(std::int16_t indice) const;
    /// The leg of a key; fault 9 if there is none.
    Ramo& Item(std::string_view chiave) const;

private:
    friend class Rotonda;
    std::vector<std::unique_ptr<Ramo>> rami_;
};

/// The project: one roundabout with its legs, turning movements, time window and options.
class Rotonda final : public OggettoProgetto {
public:
    /// `sistema` is where Save writes; `oggi` gives the date of a fresh project.
    explicit Rotonda(SistemaFile& sistema = sistemaFileStandard(), std::function<DataOra()> oggi = &kelvo::oggi);

    /// Stage of the project.
    const std::string& StatoAvanzamento() const { return dati_.statoAvanzamento; }
    void StatoAvanzamento(const std::string& valore) { scriviAltro(dati_.statoAvanzamento, valore); }
    /// Locality or hamlet.
    const std::string& Localita() const { return dati_.localita; }
    void Localita(const std::string& valore) { scriviAltro(dati_.localita, valore); }
    /// Municipality.
    const std::string& Comune() const { return dati_.comune; }
    void Comune(const std::string& valore) { scriviAltro(dati_.comune, valore); }
    /// Province.
    const std::string& Provincia() const { return dati_.provincia; }
    void Provincia(const std::string& valore) { scriviAltro(dati_.provincia, valore); }
    /// Project name: the file name without folder and extension.
    const std::string& NomeFile() const { return dati_.nomeFile; }
    void NomeFile(const std::string& valore) { scriviAltro(dati_.nomeFile, valore); }
    /// Percentile of the queue length, per cent.
    void ValorePercentile(float valore) { scriviDato(dati_.valorePercentile, valore); }
    float ValorePercentile() const { return dati_.valorePercentile; }
    /// The percentile is open to the user.
    void UsaPercentile(bool valore) { scriviAltro(dati_.usaPercentile, valore); }
    bool UsaPercentile() const { return dati_.usaPercentile; }
    /// The geometric sensitivity analysis is available.
    void OttimizzazioneGeometrica(bool valore) { scriviAltro(dati_.ottimizzazioneGeometrica, valore); }
    bool OttimizzazioneGeometrica() const { return dati_.ottimizzazioneGeometrica; }
    /// Night or poor visibility reduces the capacity of the node.
    void CondizioniNotturne(bool valore) { scriviDato(dati_.condizioniNotturne, valore); }
    bool CondizioniNotturne() const { return dati_.condizioniNotturne; }
    /// Composition: 0 one for the whole window, 1 one for each segment.
    void TipoFlusso(std::int16_t valore) { scriviDato(dati_.tipoFlusso, valore); }
    std::int16_t TipoFlusso() const { return dati_.tipoFlusso; }
    /// Turning matrix: 0 vehicles, 1 per cent of the row; any other value is kept and read as vehicles.
    void TipoMatriceSvolte(std::int16_t valore) { scriviDato(dati_.tipoMatriceSvolte, valore); }
    std::int16_t TipoMatriceSvolte() const { return dati_.tipoMatriceSvolte; }
    /// Traffic input: 0 saturation only, 1 demand curve, 2 table of segment flows.
    void TipoAnalisi(std::int16_t valore) { scriviDato(dati_.tipoAnalisi, valore); }
    std::int16_t TipoAnalisi() const { return dati_.tipoAnalisi; }

    // The engineer.
    void EMailProfessionista(const std::string& valore) { scriviAltro(dati_.eMailProfessionista, valore); }
    void TelefonoProfessionista(const std::string& valore) { scriviAltro(dati_.telefonoProfessionista, valore); }
    void CittaProfessionista(const std::string& valore) { scriviAltro(dati_.cittaProfessionista, valore); }
    void CAPProfessionista(const std::string& valore) { scriviAltro(dati_.capProfessionista, valore); }
    void IndirizzoProfessionista(const std::string& valore) { scriviAltro(dati_.indirizzoProfessionista, valore); }
    void NomeProfessionista(const std::string& valore) { scriviAltro(dati_.nomeProfessionista, valore); }
    void ProvinciaProfessionista(const std::string& valore) { scriviAltro(dati_.provinciaProfessionista, valore); }
    const std::string& NomeProfessionista() const { return dati_.nomeProfessionista; }
    const std::string& IndirizzoProfessionista() const { return dati_.indirizzoProfessionista; }
    const std::string& CAPProfessionista() const { return dati_.capProfessionista; }
    const std::string& CittaProfessionista() const { return dati_.cittaProfessionista; }
    const std::string& ProvinciaProfessionista() const { return dati_.provinciaProfessionista; }
    const std::string& TelefonoProfessionista() const { return dati_.telefonoProfessionista; }
    const std::string& EMailProfessionista() const { return dati_.eMailProfessionista; }

    // The times are kept in whole seconds, as the project file tells them: a saved project comes back exactly.

    /// Length of a time segment, held as the time of day 00:mm:00.
    DataOra SegmentoTempo() const { return dati_.segmentoTempo; }
    void SegmentoTempo(DataOra valore) { scriviDato(dati_.segmentoTempo, alSecondo(valore)); }
    /// End of the modelling window, a time of day.
    DataOra TempoFinale() const { return dati_.tempoFinale; }
    void TempoFinale(DataOra valore) { scriviDato(dati_.tempoFinale, alSecondo(valore)); }
    /// Start of the modelling window, a time of day.
    DataOra TempoIniziale() const { return dati_.tempoIniziale; }
    void TempoIniziale(DataOra valore) { scriviDato(dati_.tempoIniziale, alSecondo(valore)); }
    /// Writes one cell of the turning matrix; origin and destination legs from 1. Fault 9 outside the matrix.
    void MatriceSvolte(float valore, std::int16_t riga, std::int16_t colonna);
    /// One cell of the turning matrix as entered. Fault 9 outside the matrix.
    float MatriceSvolte(std::int16_t riga, std::int16_t colonna) const;
    /// Copies the matrix as entered, vehicles or per cent, NumeroRami by NumeroRami.
    void GetMatriceSvolte(Matrice& matrice) const { matrice = dati_.matrice; }
    /// Copies the matrix as shares from 0 to 1: each row divided by its own total, the diagonal included (a row that
    /// adds up to 0 gives 0), or by 100 where TipoMatriceSvolte is 1. Fault 6 for a share past the single range.
    void GetMatriceSvoltePercentuale(Matrice& matrice) const;
    /// Notes.
    const std::string& Note() const { return dati_.note; }
    void Note(const std::string& valore) { scriviAltro(dati_.note, valore); }
    /// Date of the project, a whole day.
    DataOra Data() const { return dati_.data; }
    void Data(DataOra valore) { scriviAltro(dati_.data, std::floor(valore)); }
    /// Title.
    const std::string& Titolo() const { return dati_.titolo; }
    void Titolo(const std::string& valore) { scriviAltro(dati_.titolo, valore); }
    /// The legs; as many as NumeroRami once the project is built.
    const RaccoltaRami& Rami() const { return rami_; }
    /// Number of legs, 3 to 7.
    std::int16_t NumeroRami() const { return dati_.numeroRami; }
    /// Sets the number of legs; a new number clears the matrix, the same one changes nothing. Fault 5 outside 3 to 7,
    /// or for a new number once legs exist.
    void NumeroRami(std::int16_t valore);
    /// The leg at a position, from 1; fault 9 if there is none.
    kelvo::Ramo& Ramo(std::int16_t indice) const { return rami_.Item(indice); }
    /// Appends a leg with that key, with its default name and the segments and times of the modelling window.
    /// Fault 457 if the key is taken, fault 9 if all legs exist.
    kelvo::Ramo& AddRamo(const std::string& chiave);
    /// Drops legs, matrix and results, and returns every field to its default.
    void Clear();
    /// Replaces the whole content from a project file. On failure `esito` is false, `messaggio` says what is wrong
    /// and where in the file (without its path), and the project is untouched.
    void Load(const std::string& percorso, std::string& messaggio, bool& esito);
    /// Writes the whole content to a project file. On failure `esito` is false, `messaggio` holds the words to show,
    /// and a file that stood there is untouched.
    void Save(const std::string& percorso, std::string& messaggio, bool& esito) const;

    /// Replaces the whole content from the text of a project file; as Load.
    void LoadTesto(std::string_view testo, std::string& messaggio, bool& esito);
    /// The text that Save writes. A fault, in words for the user, for a project that could not be read back: legs
    /// missing, a number that is not finite, a size past the limits of the file.
    std::string TestoFile() const;

    /// What a change of the modelling time threw away; Clear and a successful Load drop it.
    BackupTraffico& backupTraffico() { return backupTraffico_; }
    const BackupTraffico& backupTraffico() const { return backupTraffico_; }

    /// Counts of the changes of input since the program started; never lowered.
    const Revisione& revisione() const { return revisione_; }
    /// What the last calculation left.
    const Timbro& timbro() const { return timbro_; }
    /// What the last calculation that writes records left: the stamp of the records.
    const Timbro& timbroRecord() const { return timbroRecord_; }
    /// Stamps the results as left by a calculation of `forma` on the input as it stands, with `ambiente` in force.
    void timbra(FormaCalcolo forma, const AmbienteCalcolo& ambiente = {}) {
        timbro_ = {forma, revisione_.calcolo, ambiente};
        if (forma != FormaCalcolo::bilanciamento) {
            timbroRecord_ = timbro_;
        }
    }
    /// True if figures of that stamp are those of the project as it stands, with `ambiente` in force.
    bool attuale(const Timbro& timbro, const AmbienteCalcolo& ambiente) const {
        return timbro == Timbro{FormaCalcolo::piana, revisione_.calcolo, ambiente};
    }
    /// True if the records are those of the project as it stands, with `ambiente` in force.
    bool risultatiAttuali(const AmbienteCalcolo& ambiente) const { return attuale(timbroRecord_, ambiente); }

private:
    struct Dati {
        std::string statoAvanzamento;
        std::string localita;
        std::string comune;
        std::string provincia;
        std::string nomeFile;
        float valorePercentile = 95.0F;
        bool usaPercentile = false;
        bool ottimizzazioneGeometrica = false;
        bool condizioniNotturne = false;
        std::int16_t tipoFlusso = 0;
        std::int16_t tipoMatriceSvolte = 0;
        std::int16_t tipoAnalisi = 1;
        std::string eMailProfessionista;
        std::string telefonoProfessionista;
        std::string cittaProfessionista;
        std::string capProfessionista;
        std::string indirizzoProfessionista;
        std::string nomeProfessionista;
        std::string provinciaProfessionista;
        DataOra segmentoTempo = oraDelGiorno(0, 15);
        DataOra tempoFinale = oraDelGiorno(9, 0);
        DataOra tempoIniziale = oraDelGiorno(8, 0);
        Matrice matrice;
        std::string note;
        DataOra data = 0.0;
        std::string titolo;
        std::int16_t numeroRami = 4;
    };
    Dati datiPredefiniti() const;
    float& cellaMatrice(std::int16_t riga, std::int16_t colonna);
    const float& cellaMatrice(std::int16_t riga, std::int16_t colonna) const;

    SistemaFile& sistema_;
    std::function<DataOra()> oggi_;
    Revisione revisione_;
    Timbro timbro_;
    Timbro timbroRecord_;
    Dati dati_;
    RaccoltaRami rami_;
    BackupTraffico backupTraffico_;
};

}  // namespace kelvo
