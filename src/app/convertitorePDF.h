#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "app/processi.h"
#include "base/file.h"

namespace kelvo {

/// Makes PDF files of whole documents.
class ConvertitorePDF {
public:
    ConvertitorePDF() = default;
    ConvertitorePDF(const ConvertitorePDF&) = delete;
    ConvertitorePDF& operator=(const ConvertitorePDF&) = delete;
    virtual ~ConvertitorePDF() = default;

    /// Why there is nothing that could make one, in Italian; empty where there is.
    virtual std::string impedimento() const = 0;
    /// Writes the PDF of a .docx in the place of what stands at `pdf`; `intanto` is called while it waits. Answers an
    /// empty text, or in Italian why it failed: what stood at `pdf` then stands there untouched.
    virtual std::string converti(const std::string& documento, const std::string& pdf,
                                 const std::function<void()>& intanto) = 0;
};

/// By the office program of the machine, with a profile of its own that goes again: neither the user's settings nor an
/// open window of that program matter, and none is left behind.
class ConvertitoreUfficio final : public ConvertitorePDF {
public:
    static constexpr std::chrono::milliseconds limitePredefinito = std::chrono::minutes(3);

    /// Everything is done in a folder of its own below `cartella`. The services outlive it.
    ConvertitoreUfficio(Processi& processi, SistemaFile& file, std::string cartella,
                        std::chrono::milliseconds limite = limitePredefinito);

    std::string impedimento() const override;
    std::string converti(const std::string& documento, const std::string& pdf,
                         const std::function<void()>& intanto) override;

private:
    std::string programma() const;
    std::string eseguiIn(const std::string& programma, const std::string& lavoro, const std::function<void()>& intanto);

    Processi& processi_;
    SistemaFile& file_;
    std::string cartella_;
    std::chrono::milliseconds limite_;
};

/// Where the PDF of a document goes: beside it, under its name.
std::string percorsoPDF(const std::string& documento);

/// The address of a file for programs that want one: "file:///tmp/a%20b".
std::string indirizzoFile(const std::string& percorso);

}  // namespace kelvo
