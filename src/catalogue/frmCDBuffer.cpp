// SPDX-License-Identifier: MIT
#include "catalogue/frmCDBuffer.h"
#include "ui_frmCDBuffer.h"

frmCDBuffer::frmCDBuffer(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmCDBuffer>())
{
    ui_->setupUi(this);
}

frmCDBuffer::~frmCDBuffer() = default;
