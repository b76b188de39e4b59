#pragma once
// frmMain: the hub of the program. It shows the last stored draw of each archive and the
// restrictions in force, and opens every procedure from a button or a menu.

#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <array>
#include <memory>

#include "app/programma.h"

namespace gorgo::screens {
class FrmSceltaPrecursori;

class FrmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit FrmMain(std::unique_ptr<Programma> programma, QWidget* parent = nullptr);
    ~FrmMain() override;

    // What the program holds for the run: its windows are handed the parts they use.
    Programma& programma() { return *programma_; }

    // Reads the last record of both archives into lblUltimaEstrazione(0) and (1).
    void AggiornaUltimeEstrazioni();
    // MostraRestrizioni: the panel from the settings.
    void MostraRestrizioni();
    // "Ripristina tutti i pannelli".
    void RipristinaPannelli();

    static constexpr const char* CaptionPrincipale = "  Gorgo 2 - Tris metodologie by Sergio Tordelli";

protected:
    void changeEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    void CreaMenu();
    void CreaPannello();
    QPushButton* Pulsante(const char* nome, const QString& testo);
    void ApriOpzioni();
    void ApriEsclusioni();
    void ApriColori();
    void ApriUrl();
    // The entry and print screens of the draws, one window each.
    enum class FinestraEstrazioni { Inserisci, InserisciSuper, Stampa, StampaSuper, Stampa10eLotto };
    void ApriEstrazioni(FinestraEstrazioni quale);
    void ApriDialogoArchivio(QDialog* dialogo);
    void ImportaArchivioTesto();
    void ApriSitoWeb();
    void ApriInformazioni();
    void ApriCostruttore();
    void ApriAmboEnucleato();
    FrmSceltaPrecursori* SceltaPrecursori();
    void ApriSceltaPrecursori();
    void NascondiSceltaPrecursori();
    void ApriPrecursori10eLotto();
    void ApriPrecursoriSuper();
    void ApriAggiornaInternet(bool super);
    void ApriScaricaStorico();
    void ApriPuntiIncogniti();
    void ApriNumeriSimpatici();
    void ApriAmbateAmbiTerniMulti();
    void ApriUtility();
    // Opens the window of its kind once; a window already open comes forward.
    template <typename Finestra>
    void ApriUnica(QPointer<QWidget>& aperta);
    void ApriConsulta();
    void ApriConsultaAltroGioco(bool super);

    std::unique_ptr<Programma> programma_;
    Sessione& sessione_;
    archives::Archivio& archivio_;
    std::array<QLabel*, 2> lblUltimaEstrazione_{};
    QPointer<QWidget> costruttore_;
    QPointer<QWidget> amboEnucleato_;
    QPointer<QWidget> sceltaPrecursori_;
    std::array<QPointer<QWidget>, 5> finestreEstrazioni_;
    QPointer<QWidget> aggiornaInternet_, aggiornaSuperInternet_, scaricaStorico_;
    QPointer<QWidget> puntiIncogniti_, numeriSimpatici_, multiruota_, utility_;
    QPointer<QWidget> consulta10eLotto_, consultaSuper_;
    QLabel* lblNessuna_ = nullptr;
    std::array<QLabel*, 4> lblRestrizioni_{};
};

}  // namespace gorgo::screens
