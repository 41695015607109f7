#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/automazione.h"
#include "base/guasto.h"

namespace kelvo::prove {

/// A registry in memory; keys and values that are told to fail raise fault 70.
class RegistroFinto final : public RegistroMacchina {
public:
    std::vector<std::string> sottochiavi(const std::string& chiave) const override {
        lette.push_back(chiave);
        rifiutaSe(chiave);
        const auto trovate = chiavi.find(chiave);
        return trovate == chiavi.end() ? std::vector<std::string>{} : trovate->second;
    }
    std::string valore(const std::string& chiave, const std::string& nome) const override {
        lette.push_back(chiave + "|" + nome);
        rifiutaSe(lette.back());
        const auto trovato = valori.find(chiave + "|" + nome);
        return trovato == valori.end() ? std::string{} : trovato->second;
    }
    /// A product of a version, with its folder and its language; more of them stand side by side.
    void prodotto(const std::string& versione, const std::string& nome, const std::string& cartella,
                  const std::string& lingua) {
        const std::string autoCAD = "Software\\Autodesk\\AutoCAD";
        chiavi[autoCAD].push_back(versione);
        chiavi[autoCAD + "\\" + versione].push_back(nome);
        const std::string chiave = autoCAD + "\\" + versione + "\\" + nome;
        valori[chiave + "|Location"] = cartella;
        valori[chiave + "|Language"] = lingua;
    }

    std::map<std::string, std::vector<std::string>> chiavi;
    std::map<std::string, std::string> valori;
    std::vector<std::string> guaste;         ///< keys, and values as "key|name", that cannot be read
    mutable std::vector<std::string> lette;  ///< what was asked for, in order

private:
    void rifiutaSe(const std::string& cosa) const {
        for (const std::string& guasta : guaste) {
            if (guasta == cosa) {
                throw Guasto(NumeroGuasto::autorizzazioneNegata, cosa);
            }
        }
    }
};

/// CAD programs that write down what they are asked, with one operation that may fail.
class AutomazioneFinta final : public AutomazioneCAD {
public:
    std::string impedimento() const override { return manca; }
    std::unique_ptr<ProgrammaCAD> inCorso(const std::string& nome) override {
        nota("inCorso " + nome);
        return corre ? std::make_unique<Programma>(*this) : nullptr;
    }
    std::unique_ptr<ProgrammaCAD> crea(const std::string& nome) override {
        nota("crea " + nome);
        return std::make_unique<Programma>(*this);
    }

    std::string manca;      ///< why no program can be driven; empty where it can
    bool corre = false;     ///< an instance runs
    std::string rifiutata;  ///< the operation that fails, as it is written down
    std::vector<std::string> passi;

private:
    class Programma final : public ProgrammaCAD {
    public:
        explicit Programma(AutomazioneFinta& cad) : cad_(cad) {}
        void Visible(bool valore) override { cad_.nota(valore ? "Visible true" : "Visible false"); }
        void Activate() override { cad_.nota("Activate"); }
        void LoadDVB(const std::string& percorso) override { cad_.nota("LoadDVB " + percorso); }
        void RunMacro(const std::string& nome) override { cad_.nota("RunMacro " + nome); }

    private:
        AutomazioneFinta& cad_;
    };
    void nota(const std::string& passo) {
        passi.push_back(passo);
        if (!rifiutata.empty() && passo.rfind(rifiutata, 0) == 0) {
            throw guastoAutomazione(erroreAutomazione, passo);
        }
    }
};

}  // namespace kelvo::prove
