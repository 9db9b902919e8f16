#pragma once

#include <QObject>

#include <filesystem>
#include <functional>

class QWidget;

/// Takes the file that is dropped on a window.
class Depot final : public QObject {
public:
    explicit Depot(std::function<void(const std::filesystem::path&)> au_depot)
        : au_depot_(std::move(au_depot)) {}

    void accueillir(QWidget& fenetre);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    std::function<void(const std::filesystem::path&)> au_depot_;
};
