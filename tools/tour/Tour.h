// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QWidget;

// Goes through the program's windows by itself, with keys and buttons as a person would, and writes
// a picture of each into a folder. Needs an open album with a story. Ends the program when done,
// with status 1 when a window did not appear or a picture could not be written.
class Tour : public QObject
{
    Q_OBJECT

public:
    Tour(const QString& folder, QWidget* mainWindow);

private:
    void Continue();
    void PlanReading();
    void PlanWriting();
    void PlanIndexing();
    void PlanOtherWindows();
    void Act(std::function<void()> action);
    void Await(const QString& window);
    void Shoot(const QString& name);
    void Press(int key);
    void Click(const QString& button);
    void Choose(const QString& entry);
    void RightClick(const QString& control);
    void ShowFolder(const QString& list);
    void Resize(int width, int height);
    QWidget* Front() const;
    // Runs the action on a part of the front window; ends the tour when there is no such part.
    template<typename Part>
    void With(const QString& name, std::function<void(Part*)> action);
    void Fail(const QString& text);

    // Returns true when done, false to be called again a little later.
    using Step = std::function<bool()>;

    QString folder_;
    QWidget* mainWindow_;
    std::vector<Step> steps_;
    std::size_t next_ = 0;
    int waited_ = 0;
};
