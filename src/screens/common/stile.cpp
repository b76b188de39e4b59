#include "screens/common/stile.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTextEdit>
#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include "config/impostazioni.h"
#include "config/ini.h"

namespace gorgo::screens {

namespace {

// Screens whose labels carry colours of their own.
constexpr std::array<std::string_view, 4> FinestreEtichetteProprie = {"frmNumeriSimpatici", "frmSommeDistanze",
                                                                      "frmGraficoSomme", "frmConsultaEstrazioni"};

struct SuggerimentoStandard {
    const char* controllo;
    const char* testo;
};

constexpr SuggerimentoStandard SuggerimentiStandard[] = {
    {"cmdHelp", "Spiegazioni dettagliate sul form attuale"},
    {"cmdEsci", "Esci senza modificare nulla"},
    {"cmdCalcola", "Elabora la statistica con i parametri indicati"},
    {"cmdStampa", "Stampa i risultati della ricerca effettuata"},
    {"cmdPrintToFile", "Scrive i risultati della ricerca effettuata in un file di testo"},
    {"cmdAnnulla", "Annulla"},
    {"cmdOk", "Conferma"},
    {"cmdGioca", "Inserisci la giocata in archivio oppure stampa la bolletta"},
    {"chkRuota_0", "Tutte le ruote (esclusa Nazionale)"},
    {"chkRuota_1", "Ruota di Bari"},
    {"chkRuota_2", "Ruota di Cagliari"},
    {"chkRuota_3", "Ruota di Firenze"},
    {"chkRuota_4", "Ruota di Genova"},
    {"chkRuota_5", "Ruota di Milano"},
    {"chkRuota_6", "Ruota di Napoli"},
    {"chkRuota_7", "Ruota di Palermo"},
    {"chkRuota_8", "Ruota di Roma"},
    {"chkRuota_9", "Ruota di Torino"},
    {"chkRuota_10", "Ruota di Venezia"},
    {"chkRuota_11", "Ruota Nazionale"},
    {"chkPosDet", "Seleziona la ricerca in posizione determinata"},
    {"chkPosizione_1", "Posizione determinata 1"},
    {"chkPosizione_2", "Posizione determinata 2"},
    {"chkPosizione_3", "Posizione determinata 3"},
    {"chkPosizione_4", "Posizione determinata 4"},
    {"chkPosizione_5", "Posizione determinata 5"},
};

// A colour key; a text that is no colour falls back to the key's default.
QColor LeggiColore(const config::FileIni& ini, std::string_view chiave) {
    const std::string predefinito = config::Predefinito(config::sezioni::Settings, chiave);
    const auto numero = [](std::string_view t, long long& v) {
        const auto [fine, errore] = std::from_chars(t.data(), t.data() + t.size(), v);
        return errore == std::errc{} && fine == t.data() + t.size() && v >= 0 && v <= 0xFFFFFF;
    };
    long long v = 0;
    if (!numero(config::LeggiImpostazione(ini, config::sezioni::Settings, chiave, predefinito), v))
        numero(predefinito, v);
    return ColoreDaImpostazione(v);
}

void Colora(QWidget* w, QPalette::ColorRole ruolo, const QColor& c, bool riempi) {
    QPalette p = w->palette();
    p.setColor(ruolo, c);
    w->setPalette(p);
    if (riempi) w->setAutoFillBackground(true);
}

struct Colori {
    QColor form, etichette, liste;
    bool coloraEtichette;
};

void ColoraControllo(QWidget* w, const Colori& c) {
    if (qobject_cast<QLabel*>(w)) {
        if (c.coloraEtichette) Colora(w, QPalette::Window, c.etichette, true);
    } else if (qobject_cast<QComboBox*>(w)) {
        // Fusion draws a closed, non-editable combo with the button colour.
        Colora(w, QPalette::Base, c.liste, false);
        Colora(w, QPalette::Button, c.liste, false);
    } else if (qobject_cast<QLineEdit*>(w) || qobject_cast<QAbstractSpinBox*>(w) ||
               qobject_cast<QAbstractItemView*>(w) || qobject_cast<QTextEdit*>(w) || qobject_cast<QPlainTextEdit*>(w)) {
        Colora(w, QPalette::Base, c.liste, false);
    } else if (qobject_cast<QCheckBox*>(w) || qobject_cast<QRadioButton*>(w) || qobject_cast<QGroupBox*>(w) ||
               w->metaObject() == &QFrame::staticMetaObject) {
        Colora(w, QPalette::Window, c.form, true);
    }
}

// The controls a window is made of: composite controls (combo, spin box, list, text box) are
// one control, and windows of their own style themselves.
void Percorri(QWidget* contenitore, const Colori& c, QPushButton*& predefinito) {
    for (QObject* o : contenitore->children()) {
        auto* w = qobject_cast<QWidget*>(o);
        if (!w || w->isWindow()) continue;
        if (auto* b = qobject_cast<QPushButton*>(w)) {
            if (b->objectName() == QLatin1String("cmdCalcola") || b->objectName() == QLatin1String("cmdOk"))
                predefinito = b;
            continue;
        }
        ColoraControllo(w, c);
        const bool composto = qobject_cast<QComboBox*>(w) || qobject_cast<QAbstractSpinBox*>(w) ||
                              qobject_cast<QLineEdit*>(w) || qobject_cast<QLabel*>(w) ||
                              (qobject_cast<QAbstractScrollArea*>(w) && !qobject_cast<QScrollArea*>(w));
        if (!composto) Percorri(w, c, predefinito);
    }
}

}  // namespace

QColor ColoreDaImpostazione(long long valore) {
    return QColor(static_cast<int>(valore & 0xFF), static_cast<int>((valore >> 8) & 0xFF),
                  static_cast<int>((valore >> 16) & 0xFF));
}

long long ImpostazioneDaColore(const QColor& c) {
    return static_cast<long long>(c.red()) | static_cast<long long>(c.green()) << 8 |
           static_cast<long long>(c.blue()) << 16;
}

void ApplicaStile(QWidget* finestra, const config::FileIni& ini) {
    if (!finestra) return;
    const std::string nome = finestra->objectName().toStdString();
    Colori c{LeggiColore(ini, "ColoreForm"), LeggiColore(ini, "ColoreEtichette"), LeggiColore(ini, "ColoreListe"),
             std::find(FinestreEtichetteProprie.begin(), FinestreEtichetteProprie.end(), nome) ==
                 FinestreEtichetteProprie.end()};
    Colora(finestra, QPalette::Window, c.form, true);

    QPushButton* predefinito = nullptr;
    Percorri(finestra, c, predefinito);
    // Qt acts on a default button inside dialogs; elsewhere it is marked only.
    if (predefinito) predefinito->setDefault(true);

    for (const auto& s : SuggerimentiStandard)
        for (QWidget* w : finestra->findChildren<QWidget*>(QLatin1String(s.controllo)))
            w->setToolTip(QString::fromUtf8(s.testo));
}

}  // namespace gorgo::screens
