#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "app/Applicazione.h"
#include "app/automazione.h"
#include "app/salvataggio.h"
#include "app/serviziSistema.h"

namespace kelvo {

/// A version of the CAD program that the companion's macros are made for.
struct VersioneAutoCAD {
    std::string_view chiave;  ///< its key in the registry
    std::string_view testo;   ///< row of the list, before the language
    std::string_view nome;
    std::string_view progID;  ///< automation name
};
inline constexpr std::array versioniAutoCAD{
    VersioneAutoCAD{"R16.0", "  >  Autocad 2004  -  ", "Autocad 2004", "AutoCAD.Application.16"},
    VersioneAutoCAD{"R16.1", "  >  Autocad 2005  -  ", "Autocad 2005", "AutoCAD.Application.16.1"},
    VersioneAutoCAD{"R16.2", "  >  Autocad 2006  -  ", "Autocad 2006", "AutoCAD.Application.16.2"},
    VersioneAutoCAD{"R17.0", "  >  Autocad 2007  -  ", "Autocad 2007", "AutoCAD.Application.17"},
    VersioneAutoCAD{"R17.1", "  >  Autocad 2008  -  ", "Autocad 2008", "AutoCAD.Application.17.1"},
    VersioneAutoCAD{"R17.2", "  >  Autocad 2009  -  ", "Autocad 2009", "AutoCAD.Application.17.2"},
};
/// The automation name of a version by its name; empty for one that is not in the table.
std::string_view progIDAutoCAD(std::string_view nome);

/// A version that stands on this machine.
struct AUTOCADInstallato {
    std::string percorsoRegistro;  ///< key of the product, else of the version
    std::string cartella;          ///< where it is installed; empty where that is not told
    std::string testo;             ///< row of the list, with the language behind it
    std::string nome;
    friend bool operator==(const AUTOCADInstallato&, const AUTOCADInstallato&) = default;
};

/// What the link asks of the outside; the references outlive it.
struct ServiziKelvoCAD {
    ApriDocumenti& documenti;
    ImpostazioniUtente& impostazioni;
    Salvataggio& salvataggio;
    RegistroMacchina* registro = nullptr;  ///< null for none
    AutomazioneCAD* cad = nullptr;         ///< null for none
};

/// The link to the companion that draws the roundabout in the CAD program, and to the CAD program itself.
class modKelvoCAD {
public:
    /// Rows of the list, at most.
    static constexpr std::size_t massimoInstallati = 20;

    modKelvoCAD(Applicazione& app, const ServiziKelvoCAD& servizi) : app_(app), servizi_(servizi) {}

    /// Saves the project, after two questions, and starts the companion with its path. `esito` is true where it was
    /// started. A companion that cannot be started is told and logged.
    void LinkKELVOCAD(bool& esito);
    /// Asks where the inscribed circles of the legs differ; `esito` is true where the export may go on. The project is
    /// not changed.
    void ControllaDATIexportKCAD(bool& esito);

    /// Folder of a product by its whole key in the registry; empty where it is not told. A fault is logged.
    std::string ACAD_Path(const std::string& chiave);
    /// Language of a product, as above.
    std::string ACAD_Lingua(const std::string& chiave);
    /// The known versions on this machine, in the registry's order. What cannot be read is logged and left empty.
    std::vector<AUTOCADInstallato> LeggeAUTOCADinstallati();

    /// The project that the companion and its macros read: the one saved last; empty for none.
    std::string FilePathKelvo() const;
    const ServiziKelvoCAD& servizi() const { return servizi_; }

private:
    template <class Lettura>
    void registro(const char* metodo, Lettura lettura);
    std::string valoreRegistro(const char* metodo, const std::string& chiave, const char* nome);
    void avviaKelvoCAD();

    Applicazione& app_;
    ServiziKelvoCAD servizi_;
};

}  // namespace kelvo
