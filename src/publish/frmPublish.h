// SPDX-License-Identifier: MIT
#pragma once

#include "publish/Publication.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class frmPublish;
}

// Gives the story away: as web pages, as one page, as a book, or as an album with its pictures.
// What was chosen for an album is proposed the next time.
class frmPublish : public QDialog
{
    Q_OBJECT

public:
    explicit frmPublish(QWidget* parent = nullptr);
    ~frmPublish() override;

    // Opens what was published with the desktop's program for it.
    static inline std::function<void(const QString& path)> Show;

private:
    void cmdPublish_Click();
    void cmdChoose_Click();
    void cmdShow_Click();
    void cmdExit_Click();

    void FillChapters();
    void ShowKind();
    void ProposePlace();
    bool MayTakePlace(const QString& place);
    PublishAs GetKind() const;
    Publication GetPublication() const;
    QStringList TickedChapters() const;
    bool ShowProgress(PublishStage stage, int done, int total);
    PublishReport Run(const Publication& publication);
    void ShowResult(const PublishReport& report);

    std::unique_ptr<Ui::frmPublish> ui_;
    PublishStage stage_ = PublishStage::Reading;
    QString published_;   // what Show opens
    QString agreedPlace_; // a file that may be replaced
};
