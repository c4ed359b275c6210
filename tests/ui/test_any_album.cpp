// SPDX-License-Identifier: MIT
#include "EveryWindow.h"
#include "core/AlbumSets.h"
#include "core/Parameters.h"
#include "support/Rows.h"

#include <QTextDocument>

using namespace GeneralModule;

namespace {

// Where the toolkit reads more into a text than what stands there.
bool IsMisread(const QString& text)
{
    if (!Qt::mightBeRichText(text))
        return false;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText().contains(QChar::ObjectReplacementCharacter);
}

// Other than the program's own, links to columns.
bool HoldsMarkup(QString text)
{
    static const QRegularExpression links("<a href=\"\\d+\">|</a>");
    return Qt::mightBeRichText(text) && text.remove(links).contains(u'<');
}

QStringList MisreadTexts(QWidget& window)
{
    QStringList faults;
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    widgets.prepend(&window);
    for (const QWidget* widget : widgets) {
        if (IsMisread(widget->toolTip()))
            faults += widget->objectName() + "'s tool tip";
        const auto* label = qobject_cast<const QLabel*>(widget);
        if (label && label->textFormat() != Qt::PlainText && HoldsMarkup(label->text()))
            faults += widget->objectName() + "'s text";
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        for (int row = 0; view && view->model() && row < view->model()->rowCount(); ++row) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                if (IsMisread(view->model()->index(row, column).data(Qt::ToolTipRole).toString()))
                    faults += widget->objectName() + "'s item";
            }
        }
    }
    if (window.windowTitle().remove("[*][*]").contains("[*]"))
        faults += "title";
    return faults;
}

} // namespace

// What every window makes of albums whose texts are hostile, and of none at all.
class TestAnyAlbum : public EveryWindowTest
{
    Q_OBJECT

private slots:
    // Whatever an album says is text and nothing else, and leaves every window in its size.
    void HostileTextsStayTexts_data()
    {
        AddRows<QString>({"text"}, {{"markup", "<img src=\"/dev/zero\"><h1>Anna & Co</h1>"},
                                    {"signs of the toolkit", "Salt & Pepper [*] %1 %2 %n"},
                                    {"right to left", "\u202eשלום & <b>"},
                                    {"NUL", QString("a") + QChar(0) + "b\n<img src=x>"},
                                    {"a megabyte", QString("long & <b> ").repeated(100000)}});
    }

    void HostileTextsStayTexts()
    {
        QFETCH(QString, text);
        FillWith(text);
        isStoryRead_ = true;
        for (const char* name : everyWindow) {
            QWidget& window = Open(name);
            QVERIFY(!window.grab().isNull());
            QVERIFY2(MisreadTexts(window).isEmpty(),
                     qPrintable(name + (": " + MisreadTexts(window).join(", "))));
            const QSize least = window.minimumSizeHint();
            QVERIFY2(least == least.boundedTo({1280, 720}), name);
        }
    }

    // As after an opening that failed; monkey_fuzz does more.
    void NothingCrashesWithoutAnAlbum_data() { AddEveryWindow(); }

    void NothingCrashesWithoutAnAlbum()
    {
        QFETCH(QString, name);
        dialogs_.reset();
        const PatientDialogs patient;
        QWidget& window = Open(name);
        ReleaseAlbum();
        QTimer closer;
        connect(&closer, &QTimer::timeout, [&window] {
            QWidget* modal = QApplication::activeModalWidget();
            if (QWidget* menu = QApplication::activePopupWidget())
                menu->close();
            else if (modal && modal != &window)
                modal->close();
        });
        closer.start(20);
        for (QPushButton* button : window.findChildren<QPushButton*>()) {
            if (button->isVisibleTo(&window) && button->objectName() != "cmdSysInfo")
                button->click();
            window.show();
        }
        QVERIFY(!IsAlbumOpen());
    }

private:
    void FillWith(const QString& text)
    {
        chapter_ = album_->AddChapter(text);
        QMap<QString, QString> values;
        for (int column = 0; column < 12; ++column)
            values["Car" + QString::number(column)] = text;
        paragraph_ = album_->AddParagraph(chapter_, text, values);
        values["Legend"] = text;
        picture_ = album_->AddPicture("a<b>&[*]%1.jpg", values);
        for (const char* label : {"Car0", "Car4", "Car9", "Caract0", "Caract1", "Caract3"})
            SetParam(label, text);
        for (const char* table : {"Car0", "Car4", "Car9"}) {
            RecordSet set(AlbumDatabase, table);
            set.AddNew();
            set.Set(u"Name", text);
            set.Update();
        }
    }
};

QTEST_MAIN(TestAnyAlbum)
#include "test_any_album.moc"
