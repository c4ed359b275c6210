// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmCDBuffer;
}

// Settings of a buffer for pictures on CD-ROM. The program has no such buffer: the window is kept
// as designed, reads and stores nothing, and no menu entry opens it.
class frmCDBuffer : public QDialog
{
    Q_OBJECT

public:
    explicit frmCDBuffer(QWidget* parent = nullptr);
    ~frmCDBuffer() override;

private:
    std::unique_ptr<Ui::frmCDBuffer> ui_;
};
