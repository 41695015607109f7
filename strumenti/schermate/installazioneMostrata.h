#pragma once

#include <memory>
#include <string>

#include "app/Applicazione.h"
#include "base/file.h"

namespace kelvo::schermate {

/// The project that is told as the last one saved.
inline constexpr const char* progettoMostrato = "C:\\Rotatorie\\Progetti\\Rotatoria_Viale_della_Stazione.klv";

/// Files of which one more stands there than the system has; it is never read.
class FileMostrati final : public SistemaFile {
public:
    explicit FileMostrati(SistemaFile& veri) : veri_(veri) {}
    std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) override {
        return veri_.crea(percorso, errore);
    }
    std::int64_t dimensione(const std::string& percorso) override {
        return percorso == progettoMostrato ? 1 : veri_.dimensione(percorso);
    }
    std::string rinomina(const std::string& da, const std::string& a) override { return veri_.rinomina(da, a); }
    void elimina(const std::string& percorso) override { veri_.elimina(percorso); }
    void sincronizzaCartella(const std::string& percorso) override { veri_.sincronizzaCartella(percorso); }

private:
    SistemaFile& veri_;
};

/// The program as it stands with a user, for the windows that show paths: where these pictures are taken it has a
/// folder that is another at each run.
class InstallazioneMostrata {
public:
    explicit InstallazioneMostrata(Applicazione& vera)
        : file_(vera.file), app_("/srv/studio/Kelvo/Prog/Kelvo", "/tmp/Kelvo/", {vera.messaggi, vera.orologio, file_}) {
        app_.configurazione = vera.configurazione;
        app_.appunti = vera.appunti;
    }
    Applicazione& app() { return app_; }

private:
    FileMostrati file_;
    Applicazione app_;
};

}  // namespace kelvo::schermate
