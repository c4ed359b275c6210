// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <vector>

class QGridLayout;

struct KeyRow
{
    QString keys; // as the desktop writes them
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
