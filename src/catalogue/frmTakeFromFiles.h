// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/FileTaking.h"
#include "platform/shell/IdleWork.h"

#include <QDialog>

#include <memory>
#include <vector>

namespace Ui {
class frmTakeFromFiles;
}

class QTreeWidgetItem;

// Shows what the files of pictures say, and takes what the user wants of it into the album. Set the
// public state before exec(), which returns Accepted when something was taken.
class frmTakeFromFiles : public QDialog
{
    Q_OBJECT

public:
    explicit frmTakeFromFiles(QWidget* parent = nullptr);
    ~frmTakeFromFiles() override;

    std::vector<qint32> Pictures; // identifiers

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    bool ReadMore(std::chrono::milliseconds time);
    void ShowRead();
    void ShowFields();
    void ShowPlan();
    void AddFields(const QString& kind, const std::map<QString, int>& held,
                   const std::map<QString, int>& taken);
    TakingChoices GetChoices() const;

    void cmdStop_Click();
    void cmdTake_Click();
    void cmdExit_Click();

    std::unique_ptr<Ui::frmTakeFromFiles> ui_;
    std::unique_ptr<FileTaking> taking_;
    TakingPlan plan_;
    QSet<QString> leftOut_; // at first what is often not the day of the picture
    IdleWork work_;
    bool isDone_ = false;
    bool isFilling_ = false; // the controls change by themselves
};
