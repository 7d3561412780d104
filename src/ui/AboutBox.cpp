#include "ui/AboutBox.h"

#include "ui/ToolIcons.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <qwt_global.h>
#include <xlsxwriter.h>

namespace ventrix::ui {

namespace {
const char* const kNotices = R"(
<h3>Qt 5</h3>
<p>Copyright &copy; The Qt Company Ltd. and other contributors.</p>
<p>Ventrix uses the Qt libraries Core, Gui, Widgets, Print Support and Serial Port under the
GNU Lesser General Public License version 3 (LGPLv3). It links to them as shared libraries of
the system, which you may replace with versions of your own. The licence text is in
/usr/share/common-licenses/LGPL-3 on Debian and at https://www.gnu.org/licenses/lgpl-3.0.html;
the source code of Qt is available from your distribution.</p>

<h3>Qwt 6.1</h3>
<p>Copyright &copy; 1997 Josef Wilgen; Copyright &copy; 2002-2011 Uwe Rathmann.</p>
<p>Qwt is provided under the Qwt License, Version 1.0: the GNU Lesser General Public License
(version 2.1) with two exceptions: widgets subclassed from Qwt widgets do not constitute a
derivative work, and static linking to Qwt does not constitute a derivative work. The full
text is in /usr/share/doc/libqwt-qt5-6/copyright on Debian.</p>

<h3>libxlsxwriter</h3>
<p>Copyright &copy; 2014-2021 John McNamara. All rights reserved.</p>
<p>libxlsxwriter, which writes the spreadsheet export, is licensed under the BSD 2-Clause
licence:</p>
<p>Redistribution and use in source and binary forms, with or without modification, are
permitted provided that the following conditions are met:</p>
<ol>
<li>Redistributions of source code must retain the above copyright notice, this list of
conditions and the following disclaimer.</li>
<li>Redistributions in binary form must reproduce the above copyright notice, this list of
conditions and the following disclaimer in the documentation and/or other materials provided
with the distribution.</li>
</ol>
<p>THIS SOFTWARE IS PROVIDED BY THE COPYRIGHT HOLDERS AND CONTRIBUTORS "AS IS" AND ANY EXPRESS
OR IMPLIED WARRANTIES, INCLUDING, BUT NOT LIMITED TO, THE IMPLIED WARRANTIES OF MERCHANTABILITY
AND FITNESS FOR A PARTICULAR PURPOSE ARE DISCLAIMED. IN NO EVENT SHALL THE COPYRIGHT HOLDERS OR
CONTRIBUTORS BE LIABLE FOR ANY DIRECT, INDIRECT, INCIDENTAL, SPECIAL, EXEMPLARY, OR
CONSEQUENTIAL DAMAGES (INCLUDING, BUT NOT LIMITED TO, PROCUREMENT OF SUBSTITUTE GOODS OR
SERVICES; LOSS OF USE, DATA, OR PROFITS; OR BUSINESS INTERRUPTION) HOWEVER CAUSED AND ON ANY
THEORY OF LIABILITY, WHETHER IN CONTRACT, STRICT LIABILITY, OR TORT (INCLUDING NEGLIGENCE OR
OTHERWISE) ARISING IN ANY WAY OUT OF THE USE OF THIS SOFTWARE, EVEN IF ADVISED OF THE
POSSIBILITY OF SUCH DAMAGE.</p>
<p>libxlsxwriter contains minizip (Copyright &copy; 1998-2010 Gilles Vollant, zlib licence),
tmpfileplus (Copyright &copy; 2012-2016 David Ireland, Mozilla Public License 2.0) and a
public-domain MD5 routine by Alexander Peslyak; see /usr/share/doc/libxlsxwriter4/copyright on
Debian.</p>

<h3>DSEG fonts</h3>
<p>Copyright &copy; 2017-2020 keshikan (http://www.keshikan.net), with Reserved Font Name
"DSEG".</p>
<p>The seven-segment digits of the LCD are drawn with DSEG7, licensed under the SIL Open Font
License, Version 1.1. The fonts may be used, studied, modified and redistributed freely as long
as they are not sold by themselves; the full licence is in /usr/share/doc/fonts-dseg/copyright
on Debian and at https://openfontlicense.org.</p>
)";
} // namespace

AboutBox::AboutBox(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("ABOUT_FRM"));
    setWindowTitle(QStringLiteral("About Ventrix"));

    auto* icon = new QLabel(this);
    icon->setPixmap(ToolIcons::Application().pixmap(64, 64));
    icon->setAlignment(Qt::AlignTop);

    const QString version = QApplication::applicationVersion().isEmpty() ? QStringLiteral("1.0")
                                                                         : QApplication::applicationVersion();
    auto* title = new QLabel(QStringLiteral("Ventrix %1").arg(version), this);
    title->setObjectName(QStringLiteral("ABOUT_TITLE"));
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    title->setFont(big);
    auto* purpose = new QLabel(QStringLiteral("Companion program for the X9-410 digital multimeter:\n"
                                              "a live LCD and dial, a data log and a graph of its readings."),
        this);
    auto* versions = new QLabel(QStringLiteral("Runs on Qt %1, Qwt %2 and libxlsxwriter %3.")
                                    .arg(QString::fromLatin1(qVersion()), QStringLiteral(QWT_VERSION_STR),
                                        QStringLiteral(LXW_VERSION)),
        this);
    versions->setProperty("role", QStringLiteral("caption"));

    auto* heading = new QVBoxLayout;
    heading->setSpacing(4);
    heading->addWidget(title);
    heading->addWidget(purpose);
    heading->addWidget(versions);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(icon);
    top->addLayout(heading, 1);

    auto* notices = new QTextBrowser(this);
    notices->setObjectName(QStringLiteral("ABOUT_LICENCES"));
    notices->setOpenLinks(false);
    notices->setHtml(LicenceNotices());

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(12);
    layout->addLayout(top);
    layout->addWidget(
        new QLabel(QStringLiteral("Licence notices of the libraries and fonts Ventrix uses:"), this));
    layout->addWidget(notices, 1);
    layout->addWidget(buttons);
    resize(560, 520);
}

QString AboutBox::LicenceNotices()
{
    return QString::fromUtf8(kNotices);
}

} // namespace ventrix::ui
