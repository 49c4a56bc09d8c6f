#pragma once

#include "core/services/dialogs.h"

class QWidget;

// Message boxes and file dialogs as Qt dialogs over the main window, measured in its font.
class QtDialogs final : public Dialogs {
public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    void setParent(QWidget* parent) { parent_ = parent; }
    MsgAnswer messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                         int defaultButton = 1) override;
    double textWidth(const QString& text) const override;
    std::optional<QString> openFileDialog(const FileDialog& request) override;
    std::optional<QString> saveFileDialog(const FileDialog& request) override;
    std::optional<QString> folderDialog(const FileDialog& request) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& proposal) override;
    std::optional<int> chooseItem(const QString& prompt, const QStringList& items) override;

private:
    QWidget* parent_;
};
