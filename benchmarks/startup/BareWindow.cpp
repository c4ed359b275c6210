// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QGridLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>

// A bare window with a menu and 20 buttons. With LUMENARK_EXIT_AFTER_FIRST_PAINT set it ends once
// it has been painted, as the real program does.

namespace {

constexpr int buttonCount = 20;
constexpr int columnCount = 4;

class BareWindow : public QMainWindow
{
public:
    BareWindow()
    {
        QMenu* menu = menuBar()->addMenu(QStringLiteral("&File"));
        menu->addAction(QStringLiteral("&Open"));
        menu->addAction(QStringLiteral("E&xit"));
        auto* centre = new QWidget;
        auto* grid = new QGridLayout(centre);
        for (int i = 0; i < buttonCount; ++i) {
            auto* button = new QPushButton(QStringLiteral("Button %1").arg(i + 1));
            grid->addWidget(button, i / columnCount, i % columnCount);
        }
        setCentralWidget(centre);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QMainWindow::paintEvent(event);
        if (qEnvironmentVariableIsSet("LUMENARK_EXIT_AFTER_FIRST_PAINT")) {
            // The children are painted after their window and within the same event.
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    BareWindow window;
    window.show();
    return QApplication::exec();
}
