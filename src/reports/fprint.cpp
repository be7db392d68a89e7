// SPDX-License-Identifier: MIT
#include "reports/fprint.h"

#include "ui_fprint.h"

#include "desktop/handler.h"
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
    connectHandler(m_ui->Command1, &QPushButton::clicked, this, &FPrint::Command1_Click);
    connectHandler(m_ui->Command2, &QPushButton::clicked, this, &FPrint::Command2_Click);
    Form_Load();
}

FPrint::~FPrint() = default;

void FPrint::Form_Load()
{
    const QRect available = screen()->availableGeometry();
    resize(std::min(1120, available.width() - 40), available.height() * 9 / 10);
    move(available.left() + (available.width() - width()) / 2,
         available.top() + (available.height() - height()) / 3);
    // Hides the copy action and its separator, since reports are only printed or exported.
    for (const int hidden : {0, 1})
        m_ui->ARViewer21->tool(hidden)->setVisible(false);
    m_ui->ARViewer21->tool(2)->setText(u"พิมพ์.."_s);
    m_ui->ARViewer21->setReport(m_report->run());
    m_ui->ARViewer21->setFocus();
}

/// "ส่งออก Excel": exports the report to an .xls file.
void FPrint::Command1_Click()
{
    exportReport(ExportFormat::Excel, m_ui->ARViewer21->report());
}

/// "ส่งออก PDF": exports the report to a PDF file.
void FPrint::Command2_Click()
{
    exportReport(ExportFormat::Pdf, m_ui->ARViewer21->report());
}
