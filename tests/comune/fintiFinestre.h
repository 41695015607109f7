#pragma once

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "app/cornice.h"
#include "app/serviziSistema.h"
#include "comune/finti.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/modGestioneFinestre.h"

namespace kelvo::prove {

/// A main window without a display: keeps its caption and what is told in the status bar, counts the rest.
class CorniceFinta final : public Cornice {
public:
    std::string titolo() const override { return caption; }
    void titolo(const std::string& testo) override { caption = testo; }
    void testoNodi(const std::string& chiaveRamo, const std::string& testo) override { nodi[chiaveRamo] = testo; }
    void SetUpOpzioni() override { passi.emplace_back("SetUpOpzioni"); }
    void LoadTreeView() override { passi.emplace_back("LoadTreeView"); }
    void mostraMenu(bool visibili) override { passi.emplace_back(visibili ? "menu mostrati" : "menu nascosti"); }
    void avviso(const std::string& testo) override { avvisato = testo; }

    std::string caption = "KELVO 2014";
    std::string avvisato;
    std::map<std::string, std::string> nodi;
    std::vector<std::string> passi;  ///< the calls that shape the main window, in order
};

/// Records the keys that were asked for.
class NavigazioneFinta final : public Navigazione {
public:
    bool mostra(const std::string& chiave) override {
        chieste.push_back(chiave);
        return risposta;
    }
    std::string chiaveCorrente() const override { return corrente; }

    std::vector<std::string> chieste;
    std::string corrente;
    bool risposta = true;
};

/// A work area that writes down what is asked of it: "mostra <window>", "colloca <window>", ...
class AreaFinta final : public AreaLavoro {
public:
    Rettangolo albero() const override { return postoAlbero; }
    double larghezzaInterna() const override { return larghezza; }
    void mostra(Finestra& finestra) override { passi.push_back("mostra " + finestra.nome()); }
    void colloca(Finestra& finestra, const Rettangolo& posto) override {
        passi.push_back("colloca " + finestra.nome());
        posti[finestra.nome()] = posto;
    }
    void nascondi(Finestra& finestra) override { passi.push_back("nascondi " + finestra.nome()); }
    void vestiBarra(Finestra& finestra) override { passi.push_back("vestiBarra " + finestra.nome()); }
    void ridimensiona(Finestra& finestra) override { passi.push_back("ridimensiona " + finestra.nome()); }

    Rettangolo postoAlbero{10, 60, 300, 700};
    double larghezza = 1500;
    std::vector<std::string> passi;
    std::map<std::string, Rettangolo> posti;
};

/// File dialogues that answer a prepared path; nothing prepared is Cancel.
class DialogoFinto final : public DialogoFile {
public:
    std::optional<std::string> apri(const RichiestaFile& richiesta,
                                    const std::function<void(const std::string&)>& alCambio) override {
        richieste.push_back(richiesta);
        for (const std::string& percorso : selezioni) {
            if (alCambio) {
                alCambio(percorso);
            }
        }
        return risposta;
    }
    std::optional<std::string> salva(const RichiestaFile& richiesta) override {
        richieste.push_back(richiesta);
        return risposta;
    }

    std::optional<std::string> risposta;
    std::vector<std::string> selezioni;  ///< what the user clicks on before the answer
    std::vector<RichiestaFile> richieste;
};

/// Records what is opened and started.
class DocumentiFinti final : public ApriDocumenti {
public:
    bool apri(const std::string& percorso) override {
        aperti.push_back(percorso);
        return riesce;
    }
    bool avvia(const std::string& programma, const std::string& argomento) override {
        avviati.emplace_back(programma, argomento);
        return riesce;
    }

    bool riesce = true;
    std::vector<std::string> aperti;
    std::vector<std::pair<std::string, std::string>> avviati;
};

/// User settings that live in memory.
class ImpostazioniFinte final : public ImpostazioniUtente {
public:
    using Posto = std::tuple<std::string, std::string, std::string>;
    void scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                const std::string& valore) override {
        valori[{applicazione, sezione, chiave}] = valore;
    }
    std::string leggi(const std::string& applicazione, const std::string& sezione,
                      const std::string& chiave) const override {
        const auto trovato = valori.find({applicazione, sezione, chiave});
        return trovato == valori.end() ? std::string{} : trovato->second;
    }

    std::map<Posto, std::string> valori;
};

/// A machine with or without another run of the program.
class IstanzaFinta final : public IstanzaUnica {
public:
    void creaMutex(const std::string& nome) override { creati.push_back(nome); }
    bool altraIstanza() const override { return altra; }

    bool altra = false;
    std::vector<std::string> creati;
};

/// Regional settings that take what is written.
class LocaleFinto final : public LocaleUtente {
public:
    ImpostazioniInternazionali leggi() const override { return impostazioni; }
    void scriviSeparatori(const std::string& decimale, const std::string& migliaia) override {
        scritti.emplace_back(decimale, migliaia);
        impostazioni.decimale = decimale;
        impostazioni.migliaia = migliaia;
    }

    ImpostazioniInternazionali impostazioni{"€", "EUR", ",", ".", ",", "."};
    std::vector<std::pair<std::string, std::string>> scritti;
};

/// Waits for nothing and writes down how long it should have.
class AttesaFinta final : public Attesa {
public:
    bool pausa(int millisecondi) override {
        pause.push_back(millisecondi);
        return interrotta;
    }
    void eventi() override { ++giri; }

    bool interrotta = false;
    std::vector<int> pause;
    int giri = 0;
};

/// A program with its main window, and all that a window is handed.
class ScenaFinestre : public AppFinta {
public:
    StatoFinestre stato;
    CorniceFinta cornice;
    NavigazioneFinta navigazione;
    AreaFinta area;
    modGestioneFinestre gestione{app, stato, area};

    Contorno contorno() { return {app, stato, cornice, navigazione}; }
};

}  // namespace kelvo::prove
