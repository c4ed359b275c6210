// SPDX-License-Identifier: MIT
#include "catalogue/UndoTurn.h"

#include "core/Album.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/PassingNews.h"
#include "platform/widgets/WorkProgress.h"

#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>

using namespace GeneralModule;

namespace {

constexpr qint64 quietTime = 400;  // milliseconds of work that need no progress bar
constexpr int smallestWidth = 380; // logical pixels
constexpr std::chrono::milliseconds newsTime(4000);

struct UndoTurn
{
    Q_DECLARE_TR_FUNCTIONS(UndoTurn)
};

// A small window over the one where undo was asked for, once it takes long.
class TurnProgress
{
public:
    explicit TurnProgress(QWidget* window) : window_(window) { time_.start(); }
    ~TurnProgress()
    {
        if (bar_)
            bar_->End();
    }
    Q_DISABLE_COPY_MOVE(TurnProgress)

    bool Advance(int done)
    {
        if (!bar_ && time_.elapsed() > quietTime)
            Show();
        return !bar_ || bar_->Advance(done);
    }

private:
    void Show()
    {
        dialog_ = std::make_unique<QDialog>(window_);
        dialog_->setObjectName(QStringLiteral("dlgUndo"));
        dialog_->setWindowTitle(QGuiApplication::applicationDisplayName());
        dialog_->setModal(true);
        dialog_->setMinimumWidth(smallestWidth);
        auto* layout = new QVBoxLayout(dialog_.get());
        layout->addWidget(new QLabel(UndoTurn::tr("The album is being changed...")));
        bar_ = new WorkProgress;
        layout->addWidget(bar_);
        bar_->Begin(0, true);
        dialog_->show();
    }

    QWidget* window_;
    QElapsedTimer time_;
    std::unique_ptr<QDialog> dialog_;
    WorkProgress* bar_ = nullptr; // the dialog's
};

void ShowNews(QWidget* window, const QString& text)
{
    const QString name = QStringLiteral("lblUndoNews");
    auto* news =
        static_cast<PassingNews*>(window->findChild<QLabel*>(name, Qt::FindDirectChildrenOnly));
    if (!news) {
        news = new PassingNews(window);
        news->setObjectName(name);
    }
    news->Show(text, window->rect(), PassingNews::Edge::Bottom, newsTime);
}

// Shown where the user looks afterwards: a window that shows what is gone closes.
void Turn(QWidget* window, const std::function<QString(const UndoProgress&)>& turn,
          const std::function<QString()>& whyNot)
{
    if (!IsAlbumOpen() || !UndoListener::SaveAll())
        return;
    QString text;
    {
        const BusyPointer busy;
        TurnProgress progress(window);
        text = turn([&](int done) { return progress.Advance(done); });
    }
    ShowNews(window->isVisible() || !window->parentWidget() ? window
                                                            : window->parentWidget()->window(),
             text.isEmpty() ? whyNot() : text);
}

QString WhyNotTakenBack()
{
    return UndoName().isEmpty() ? WhyNoUndo() : UndoTurn::tr("Stopped: nothing was changed");
}

QString WhyNotMadeAgain()
{
    return RedoName().isEmpty() ? UndoTurn::tr("There is nothing to redo.")
                                : UndoTurn::tr("Stopped: nothing was changed");
}

} // namespace

void TakeBack(QWidget* window, int steps)
{
    RunGuarded([&] {
        Turn(
            window, [&](const UndoProgress& progress) { return Undo(steps, progress); },
            WhyNotTakenBack);
    });
}

void MakeAgain(QWidget* window)
{
    RunGuarded([&] {
        Turn(
            window, [](const UndoProgress& progress) { return Redo(1, progress); },
            WhyNotMadeAgain);
    });
}
