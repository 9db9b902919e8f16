#include "ui/commun/nombre.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QRegularExpression>
#include <QStatusTipEvent>
#include <QToolTip>

namespace {

const QLocale& francais() {
    static const QLocale langue = [] {
        QLocale l(QLocale::French, QLocale::France);
        l.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
        return l;
    }();
    return langue;
}

QString attendu(int decimales, double mini, double maxi) {
    const QString limites =
        QString(" de %1 à %2")
            .arg(francais().toString(mini, 'f', 0), francais().toString(maxi, 'f', 0));
    if (decimales == 0)
        return "un nombre entier" + limites;
    return "un nombre" + limites + QString(", avec %1 décimale(s) au plus").arg(decimales);
}

/// Beside the field, and in the status bar of its window if it has one.
void dire(QWidget& champ, const QString& raison) {
    QToolTip::showText(champ.mapToGlobal(champ.rect().bottomLeft()), raison, &champ);
    QStatusTipEvent en_bas(raison);
    QCoreApplication::sendEvent(champ.window(), &en_bas);
}

/// Digits; a comma can be typed and makes it no whole number.
class SaisieEntiere final : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& texte, int&) const override {
        static const QRegularExpression entier("^-?[0-9]{1,5}$");
        static const QRegularExpression signes("^[-+0-9.,]{0,12}$");
        if (!signes.match(texte).hasMatch())
            return Invalid;
        return entier.match(texte.replace('.', ',')).hasMatch() ? Acceptable : Intermediate;
    }
};

} // namespace

Saisie lire_saisie(const QString& texte, int decimales, double mini, double maxi) {
    const QString propre = texte.trimmed().replace('.', ',');
    static const QRegularExpression nombre("^[-+]?[0-9]+(?:,([0-9]+))?$");
    const QRegularExpressionMatch lu = nombre.match(propre);
    const QString il_faut = " : il faut " + attendu(decimales, mini, maxi);
    if (propre.isEmpty())
        return {{}, "Ce champ est vide" + il_faut};
    const double valeur = francais().toDouble(propre);
    if (!lu.hasMatch() || lu.capturedLength(1) > decimales || valeur < mini || valeur > maxi)
        return {{}, "« " + texte.trimmed() + " » est refusé" + il_faut};
    return {valeur, {}};
}

template <typename Base>
ChampNombre<Base>::ChampNombre(QWidget* parent) : Base(parent) {
    this->setKeyboardTracking(false); // a number counts when it is complete
    QObject::connect(this->lineEdit(), &QLineEdit::textEdited, this, [this] { expliquer(); });
}

// While it is typed: as soon as nothing that follows can make a number of it.
template <typename Base>
void ChampNombre<Base>::expliquer() {
    static const QRegularExpression debut("^[-+]?[0-9]*,?$");
    static const QRegularExpression debut_d_entier("^[-+]?$");
    const QString texte = nu(this->text()).replace('.', ',');
    const bool entier = chiffres_apres_la_virgule() == 0;
    const QString raison = saisie().raison;
    const bool a_suivre = (entier ? debut_d_entier : debut).match(texte).hasMatch();
    if (!raison.isEmpty() && !a_suivre)
        dire(*this, raison);
    else if (dit_)
        dire(*this, {});
    dit_ = !raison.isEmpty() && !a_suivre;
}

template <typename Base>
int ChampNombre<Base>::chiffres_apres_la_virgule() const {
    if constexpr (std::is_same_v<Base, QSpinBox>)
        return 0;
    else
        return this->decimals();
}

template <typename Base>
QString ChampNombre<Base>::nu(QString texte) const {
    const QString unite = this->suffix();
    for (qsizetype n = unite.size(); n > 0; --n) // part of it may have been deleted
        if (texte.endsWith(unite.left(n))) {
            texte.chop(n);
            break;
        }
    return texte.trimmed();
}

// Behind the empty field stands its greatest number: any other one that is typed is a change.
template <typename Base>
void ChampNombre<Base>::montrer(std::optional<Valeur> valeur) {
    melange_ = !valeur;
    this->setValue(valeur.value_or(this->maximum()));
}

template <typename Base>
Saisie ChampNombre<Base>::lire(const QString& texte) const {
    if (melange_ && nu(texte).isEmpty())
        return {double(this->value()), {}};
    return lire_saisie(nu(texte), chiffres_apres_la_virgule(), this->minimum(), this->maximum());
}

template <typename Base>
QString ChampNombre<Base>::textFromValue(Valeur valeur) const {
    if (melange_)
        return {};
    QString texte = francais().toString(double(valeur), 'f', chiffres_apres_la_virgule());
    static const QRegularExpression zeros_inutiles(",?0+$");
    if (texte.contains(','))
        texte.remove(zeros_inutiles);
    return texte;
}

template <typename Base>
typename ChampNombre<Base>::Valeur ChampNombre<Base>::valueFromText(const QString& texte) const {
    return static_cast<Valeur>(lire(texte).valeur.value_or(this->value()));
}

template <typename Base>
QValidator::State ChampNombre<Base>::validate(QString& texte, int&) const {
    // Anything may stand there for a while: a key that did nothing would make 125 of "12,5".
    return lire(texte).valeur ? QValidator::Acceptable : QValidator::Intermediate;
}

// Before the field takes back its last number.
template <typename Base>
void ChampNombre<Base>::dire_un_refus() {
    if (const QString raison = saisie().raison; !raison.isEmpty())
        dire(*this, raison);
}

template <typename Base>
void ChampNombre<Base>::focusOutEvent(QFocusEvent* evenement) {
    dire_un_refus();
    Base::focusOutEvent(evenement);
}

template <typename Base>
void ChampNombre<Base>::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        dire_un_refus();
    Base::keyPressEvent(evenement);
}

template class ChampNombre<QSpinBox>;
template class ChampNombre<QDoubleSpinBox>;

namespace {

template <typename Champ>
std::optional<QString> prendre(QWidget* champ) {
    auto* nombre = dynamic_cast<Champ*>(champ);
    if (nombre == nullptr)
        return std::nullopt;
    if (const QString raison = nombre->saisie().raison; !raison.isEmpty())
        return nombre->accessibleName() + " : " + raison;
    nombre->interpretText();
    return QString();
}

} // namespace

QString prendre_la_saisie(const QWidget& fenetre) {
    QWidget* champ = fenetre.focusWidget();
    if (const auto raison = prendre<NombreEntier>(champ))
        return *raison;
    return prendre<Nombre>(champ).value_or(QString());
}

void n_accepter_que_des_entiers(QLineEdit& champ) {
    const auto expliquer = [&champ] {
        if (!champ.hasAcceptableInput() && !champ.text().isEmpty() && champ.text() != "-")
            dire(champ, "Un nombre entier, sans lettre ni virgule");
    };
    champ.setValidator(new SaisieEntiere(&champ));
    QObject::connect(&champ, &QLineEdit::textEdited, &champ, expliquer);
    QObject::connect(&champ, &QLineEdit::inputRejected, &champ,
                     [&champ] { dire(champ, "Un nombre entier, sans lettre ni virgule"); });
}
