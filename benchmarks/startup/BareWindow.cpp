// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QGridLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>

// A bare window with a menu and 20 buttons.

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
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    BareWindow window;
    window.show();
    return QApplication::exec();
}
