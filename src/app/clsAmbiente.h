#pragma once

#include <cstdint>
#include <string>

#include "base/file.h"

namespace kelvo {

/// Access to the configuration file, and the surroundings of the running program.
class clsAmbiente {
public:
    /// A configuration file is no larger than this, bytes.
    static constexpr std::uint64_t massimoIni = 1024UL * 1024UL;

    /// `cartellaProgramma`: folder of the program, without a separator at its end; `cartellaLavoro`: writable folder
    /// for temporary files.
    clsAmbiente(std::string cartellaProgramma, const std::string& cartellaLavoro, SistemaFile& sistema);

    /// Folder for the temporary files of the exports; ends in a path separator.
    const std::string& CartellaLavoro() const { return cartellaLavoro_; }
    /// Writes a key of a configuration file, whole path; a file that holds that value already is not touched. A file
    /// that cannot be read or written stays as it is: the answer tells why, and is empty where all went well. Fault 5
    /// for a section or key that could not be found again.
    std::string ScriviIni(const std::string& percorsoFile, const std::string& sezione, const std::string& chiave,
                          const std::string& valore);
    /// Reads a key of a configuration file, whole path; empty text for a missing key or file.
    std::string LeggiIni(const std::string& sezione, const std::string& chiave, const std::string& percorsoFile) const;

    /// Folder of the program, without a separator at its end.
    const std::string& CartellaProgramma() const { return cartellaProgramma_; }
    /// Folder of the parts that are written (configuration, log, templates, reports, workbooks), with the projects
    /// beside it; without a separator at its end. It is the program's folder, or the user's own copy of these parts
    /// where the program's folder is not to be written.
    const std::string& CartellaScritta() const { return cartellaScritta_; }
    /// Takes a copy of the parts that are written, its configuration file with it.
    void CartellaScritta(const std::string& cartella);
    /// Whole path of a file or folder of the installation, as percorsoSenzaMaiuscole finds it: without regard to case,
    /// '/' and '\\' alike between its components. What nobody writes (pictures, faces, pages, guides) stands below
    /// CartellaProgramma, all else below CartellaScritta.
    std::string PercorsoProgramma(const std::string& nome) const;
    /// Whole path of the program's configuration file.
    std::string PercorsoIni() const { return percorsoIni_; }
    /// Takes another configuration file than the one beside the program.
    void PercorsoIni(const std::string& percorso) { percorsoIni_ = percorso; }

    /// Reduction of the capacity of the node at night, whole per cent: what the options field shows at this moment.
    std::int16_t PercentualeNotturna() const { return percentualeNotturna_; }
    void PercentualeNotturna(std::int16_t valore) { percentualeNotturna_ = valore; }

private:
    std::string cartellaProgramma_;
    std::string cartellaScritta_;
    std::string cartellaLavoro_;
    std::string percorsoIni_;
    std::int16_t percentualeNotturna_ = 0;
    SistemaFile& sistema_;
};

}  // namespace kelvo
