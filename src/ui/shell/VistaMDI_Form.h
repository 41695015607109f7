#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QMainWindow>
#include <map>

#include "shell/MDI_Form.h"
#include "ui/VistaFinestra.h"

class QDialog;
class QLabel;
class QSplitter;
class QStackedLayout;

namespace kelvo::ui {

class VistaAlbero;

/// The main window as it is seen: menu, tool bar, tree, work area, status bar.
class VistaMDI_Form final : public QMainWindow, public Superficie {
    Q_OBJECT
public:
    VistaMDI_Form();
    ~VistaMDI_Form() override;
    VistaMDI_Form(const VistaMDI_Form&) = delete;
    VistaMDI_Form& operator=(const VistaMDI_Form&) = delete;

    /// Shows a main window's logic; once, before anything else.
    void collegaA(MDI_Form& logica);
    /// The view of the window at hand; null for none.
    VistaFinestra* vistaCorrente() const;
    /// Where the windows stand, right of the tree.
    QWidget& area() { return *area_; }

    // Superficie; places are in twips, fifteen to a logical pixel.
    Rettangolo albero() const override;
    double larghezzaInterna() const override;
    void mostra(Finestra& finestra) override;
    void colloca(Finestra& finestra, const Rettangolo& posto) override;
    void nascondi(Finestra& finestra) override;
    void vestiBarra(Finestra& finestra) override;
    void ridimensiona(Finestra& finestra) override;
    void mostraCornice() override;
    void mostraAlbero(bool visibile) override;
    void collocaAlbero(const Rettangolo& posto) override;
    void scambiaFuoco() override;
    MetricheCornice metriche() const override;
    Misura schermo() const override;
    void mostraModale(Finestra& finestra) override;
    void apriSopra(Finestra& finestra) override;
    void chiudiSopra(Finestra& finestra) override;
    void mostraAiuto(Finestra& aiuto) override;
    Finestra* finestraInFuoco() override;
    void dimentica(Finestra& finestra) override;
    void termina() override;

protected:
    void closeEvent(QCloseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

private:
    VistaFinestra* vista(Finestra& finestra);
    void creaBarraStato();
    QWidget* creaSuggerimenti();
    void creaScorciatoie();
    QWidget* paginaVuota();

    MDI_Form* logica_ = nullptr;
    QSplitter* divisore_ = nullptr;
    VistaAlbero* albero_ = nullptr;
    QWidget* area_ = nullptr;
    QStackedLayout* pila_ = nullptr;
    QWidget* vuota_ = nullptr;
    int larghezzaScelta_ = 0;  ///< of the tree, by the user's hand; 0 as long as he chose none
    std::map<const Finestra*, QPointer<VistaFinestra>> viste_;
    std::map<const Finestra*, QPointer<QDialog>> sopra_;
    QPointer<QDialog> aiuto_;  ///< the help window
};

}  // namespace kelvo::ui
