#include "screens/consultation/controlli.h"

namespace gorgo::screens::consultazione {

QColor Qcolore(consultation::Colore c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

QPushButton* Pulsante(QWidget* parent, const QString& nome, const QString& testo, const QString& suggerimento) {
    auto* b = new QPushButton(testo, parent);
    b->setObjectName(nome);
    if (!suggerimento.isEmpty()) b->setToolTip(suggerimento);
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}

QLabel* Etichetta(QWidget* parent, const QString& nome, const QString& testo) {
    auto* l = new QLabel(testo, parent);
    l->setObjectName(nome);
    return l;
}

QLabel* CasellaNumero(QWidget* parent, const QString& nome, int larghezza) {
    auto* l = Etichetta(parent, nome);
    l->setAlignment(Qt::AlignCenter);
    l->setFixedSize(larghezza, 24);
    l->setAutoFillBackground(true);
    l->setFrameShape(QFrame::Box);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

void MostraCasella(QLabel* l, const QString& testo, consultation::Colore sfondo, consultation::Colore colore) {
    if (l->text() != testo) l->setText(testo);
    // Palettes are set only when they change: a held arrow key refreshes many times a second.
    QPalette p = l->palette();
    const QColor s = Qcolore(sfondo), t = Qcolore(colore);
    if (p.color(QPalette::Window) == s && p.color(QPalette::WindowText) == t) return;
    p.setColor(QPalette::Window, s);
    p.setColor(QPalette::WindowText, t);
    l->setPalette(p);
}

}  // namespace gorgo::screens::consultazione
