// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QList>
#include <QString>

#include <vector>

class QGridLayout;

// As keyboard and desktop name them, "Ctrl+Return, F11".
QString KeyNames(const QList<QKeySequence>& keys);

struct KeyRow
{
    QString keys; // by these names
    QString meaning;
};

// The keys of one window.
struct KeySection
{
    QString title;
    std::vector<KeyRow> rows;
};

// A sheet that tells what keys do, section by section.
class KeySheet : public QDialog
{
    Q_OBJECT

public:
    KeySheet(const std::vector<KeySection>& sections, QWidget* parent);

private:
    static void AddSection(const KeySection& section, QGridLayout& grid);
};
