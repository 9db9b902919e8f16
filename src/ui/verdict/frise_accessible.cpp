#include "ui/verdict/frise_accessible.h"

#include "ui/verdict/vue_frise.h"

#include <QAccessibleWidget>

#include <cmath>

namespace {

class FriseAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit FriseAccessible(VueFrise& frise)
        : QAccessibleWidget(&frise, QAccessible::Slider), frise_(frise) {}

    QString text(QAccessible::Text sorte) const override {
        return sorte == QAccessible::Value ? frise_.lecture() : QAccessibleWidget::text(sorte);
    }
    void* interface_cast(QAccessible::InterfaceType sorte) override {
        return sorte == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                    : QAccessibleWidget::interface_cast(sorte);
    }
    QVariant currentValue() const override { return frise_.deroulement().temps() / 100.0; }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return frise_.deroulement().duree() / 100.0; }
    QVariant minimumStepSize() const override { return 0.01; }
    void setCurrentValue(const QVariant& secondes) override {
        frise_.au_curseur(static_cast<std::int32_t>(std::lround(secondes.toDouble() * 100)));
    }

private:
    VueFrise& frise_;
};

QAccessibleInterface* fabriquer_frise(const QString&, QObject* objet) {
    auto* frise = dynamic_cast<VueFrise*>(objet);
    return frise != nullptr ? new FriseAccessible(*frise) : nullptr;
}

} // namespace

void rendre_la_frise_accessible() {
    QAccessible::installFactory(fabriquer_frise); // once, however often
}
