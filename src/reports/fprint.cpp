// SPDX-License-Identifier: MIT
#include "reports/fprint.h"

#include "ui_fprint.h"

#include "reports/export.h"

#include <QAction>
#include <QScreen>

#include <utility>

using namespace Qt::StringLiterals;

FPrint::FPrint(const QString &name, std::unique_ptr<Report> report, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::FPrint>()), m_report(std::move(report))
{
    m_ui->setupUi(this);
    setObjectName(name);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    connect(m_ui->Command1, &QPushButton::clicked, this, &FPrint::Command1_Click);
    connect(m_ui->Command2, &QPushButton::clicked, this, &FPrint::Command2_Click);
    Form_Load();
}

FPrint::~FPrint() = default;

void FPrint::Form_Load()
{
    const QRect room = screen()->availableGeometry();
    resize(std::min(1120, room.width() - 40), room.height() * 9 / 10);
    move(room.left() + (room.width() - width()) / 2, room.top() + (room.height() - height()) / 3);
    for (const int hidden : {0, 1}) // what leaves this window is paper or a file
        m_ui->ARViewer21->tool(hidden)->setVisible(false);
    m_ui->ARViewer21->tool(2)->setText(u"พิมพ์.."_s);
    m_ui->ARViewer21->setReport(m_report->run());
    m_ui->ARViewer21->setFocus();
}

/// "ส่งออก Excel": saves the report as a sheet.
void FPrint::Command1_Click()
{
    exportReport(ExportFormat::Excel, m_ui->ARViewer21->report());
}

/// "ส่งออก PDF": saves the report as a document.
void FPrint::Command2_Click()
{
    exportReport(ExportFormat::Pdf, m_ui->ARViewer21->report());
}
