#include "screens/consultation/frm_grafico_somme.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLineSeries>
#include <QPainter>
#include <QPrinter>
#include <QVBoxLayout>
#include <QValueAxis>

#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/consultation/controlli.h"

namespace gorgo::screens {

using namespace consultazione;

FrmGraficoSomme::FrmGraficoSomme(Sessione& sessione, consultation::SerieGrafico serie, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), serie_(std::move(serie)) {
    setObjectName("frmGraficoSomme");
    setWindowTitle(QStringLiteral(" Grafico Somme e distanze"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* v = new QVBoxLayout(this);
    v->addWidget(Etichetta(this, "lblDescrizione", QString::fromStdString(serie_.descrizione)));
    vista_ = new QChartView(this);
    vista_->setObjectName("grafico");
    vista_->setRenderHint(QPainter::Antialiasing);
    v->addWidget(vista_, 1);
    auto* h = new QHBoxLayout;
    cmdTipoGrafico_ = Pulsante(this, "cmdTipoGrafico", QStringLiteral("Grafico a linee"));
    auto* stampa = Pulsante(this, "cmdStampa", QStringLiteral("Stampa"));
    connect(cmdTipoGrafico_, &QPushButton::clicked, this, &FrmGraficoSomme::CambiaTipo);
    connect(stampa, &QPushButton::clicked, this, &FrmGraficoSomme::Stampa);
    h->addWidget(cmdTipoGrafico_);
    h->addStretch();
    h->addWidget(stampa);
    v->addLayout(h);
    resize(640, 420);
    Disegna();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "GraficoSommeDistanzeLeft", "GraficoSommeDistanzeTop");
}

void FrmGraficoSomme::Disegna() {
    auto* chart = new QChart;
    QStringList categorie;
    for (const auto& e : serie_.etichette) categorie << QString::fromStdString(e);
    auto* asseX = new QBarCategoryAxis;
    asseX->append(categorie);
    auto* asseY = new QValueAxis;
    asseY->setRange(0, 90);
    asseY->setLabelFormat("%d");
    chart->addAxis(asseX, Qt::AlignBottom);
    chart->addAxis(asseY, Qt::AlignLeft);
    if (barre_) {
        auto* somme = new QBarSet(QStringLiteral("Somme"));
        auto* distanze = new QBarSet(QStringLiteral("Distanze"));
        for (size_t i = 0; i < serie_.somme.size(); ++i) {
            *somme << serie_.somme[i];
            *distanze << serie_.distanze[i];
        }
        auto* s = new QBarSeries;
        s->append(somme);
        s->append(distanze);
        chart->addSeries(s);
        s->attachAxis(asseX);
        s->attachAxis(asseY);
    } else {
        for (int k = 0; k < 2; ++k) {
            auto* s = new QLineSeries;
            s->setName(k == 0 ? QStringLiteral("Somme") : QStringLiteral("Distanze"));
            s->setPointsVisible(true);
            const auto& valori = k == 0 ? serie_.somme : serie_.distanze;
            // Category i stands at i on the axis of the bars.
            for (size_t i = 0; i < valori.size(); ++i) s->append(static_cast<double>(i), valori[i]);
            chart->addSeries(s);
            s->attachAxis(asseX);
            s->attachAxis(asseY);
        }
    }
    chart->setTitle(QString::fromStdString(serie_.descrizione));
    chart->legend()->setAlignment(Qt::AlignBottom);
    QChart* vecchio = vista_->chart();
    vista_->setChart(chart);
    delete vecchio;
}

void FrmGraficoSomme::CambiaTipo() {
    barre_ = !barre_;
    // The caption names the other choice.
    cmdTipoGrafico_->setText(barre_ ? QStringLiteral("Grafico a linee") : QStringLiteral("Grafico a barre"));
    Disegna();
}

void FrmGraficoSomme::Stampa() {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setPageOrientation(QPageLayout::Landscape);
    if (!ApriDialogoStampa(this, stampante)) return;
    QPainter p;
    if (!p.begin(&stampante)) return;
    const QRect pagina = p.viewport();
    p.setFont(FontReport(QStringLiteral("Courier New"), 12));
    p.drawText(QRect(0, 0, pagina.width(), pagina.height() / 12), Qt::AlignCenter,
               QStringLiteral("Gorgo - Somme e distanze - ") + QString::fromStdString(serie_.descrizione));
    vista_->render(&p, QRectF(0, pagina.height() / 10.0, pagina.width(), pagina.height() * 0.85));
    p.end();
}

void FrmGraficoSomme::closeEvent(QCloseEvent* e) {
    SalvaPosizione(this, sessione_.ini, "GraficoSommeDistanzeLeft", "GraficoSommeDistanzeTop");
    e->accept();
}

}  // namespace gorgo::screens
