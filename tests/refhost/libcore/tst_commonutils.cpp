// SPDX-License-Identifier: MIT
#include "CommonUtils.h"
#include "refhost/libcore/Host.h"
#include "refhost/libcore/TemporarySetting.h"

#include <QDialog>
#include <QFile>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <sys/stat.h>

#include <memory>

class TestCommonUtils : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { refhost::setMainWindow(nullptr); }

    void readsASettingThatWasStored();
    void readsASettingWrittenByHand();
    void readsAnUnsetSettingAsEmpty();
    void answersWithATemporarySettingWhileItLives();
    void saysWhenASettingCannotBeStored();
    void keepsSettingsToTheirOwner_data();
    void keepsSettingsToTheirOwner();
    void closesAnOpenSettingsFolder();
    void leavesAFolderAloneThatIsLinked();

    void knowsNoMainWindowAtFirst();
    void answersWithTheMainWindow();
    void forgetsAMainWindowThatIsGone();

    void centresADialogOverTheMainWindow();
    void centresADialogOverTheScreen_data();
    void centresADialogOverTheScreen();
    void keepsADialogOnTheScreen();
    void centresADialogThatHasNoSizeYet();
    void toleratesNoDialog();

private:
    QString settingsFile() const { return m_folder->filePath("refdialer/refdialer.conf"); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{

/// As far as whole pixels go.
bool isCentred(const QWidget &widget, const QRect &over)
{
    const QPoint distance = widget.frameGeometry().center() - over.center();
    return distance.manhattanLength() <= 2;
}

QRect screenArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

int modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 0777U)
                                                                   : -1;
}

} // namespace

void TestCommonUtils::initTestCase()
{
    QVERIFY2(screenArea().width() >= 800 && screenArea().height() >= 600,
             "the screen is too small for these tests");
}

void TestCommonUtils::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
}

void TestCommonUtils::readsASettingThatWasStored()
{
    const QString value = QString::fromUtf8("a, \"b\"; =ä €");
    QVERIFY(refhost::storeSetting("SomePlugin", "Key", value));
    QCOMPARE(CommonUtils::GetSettings("SomePlugin", "Key"), value);
    QVERIFY(QFile::exists(settingsFile()));
}

void TestCommonUtils::readsASettingWrittenByHand()
{
    QVERIFY(QDir(m_folder->path()).mkdir("refdialer"));
    QFile file(settingsFile());
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("[NetInfoRecordUIPlugin]\nWhetherShowNotesbox=true\n");
    file.close();
    QCOMPARE(CommonUtils::GetSettings("NetInfoRecordUIPlugin", "WhetherShowNotesbox"),
             QString("true"));
}

void TestCommonUtils::readsAnUnsetSettingAsEmpty()
{
    QVERIFY(refhost::storeSetting("SomePlugin", "Key", "value"));
    QCOMPARE(CommonUtils::GetSettings("SomePlugin", "OtherKey"), QString());
    QCOMPARE(CommonUtils::GetSettings("OtherPlugin", "Key"), QString());
}

void TestCommonUtils::answersWithATemporarySettingWhileItLives()
{
    QVERIFY(refhost::storeSetting("SomePlugin", "Key", "stored"));
    {
        const refhost::TemporarySetting setting("SomePlugin", "Key", "temporary");
        QCOMPARE(CommonUtils::GetSettings("SomePlugin", "Key"), QString("temporary"));
        QCOMPARE(CommonUtils::GetSettings("OtherPlugin", "Key"), QString());
        QFile file(settingsFile());
        QVERIFY(file.open(QFile::ReadOnly));
        QVERIFY(!file.readAll().contains("temporary"));
    }
    QCOMPARE(CommonUtils::GetSettings("SomePlugin", "Key"), QString("stored"));
}

void TestCommonUtils::saysWhenASettingCannotBeStored()
{
    // A file where the settings' folder belongs: not even root can write there.
    QFile obstacle(m_folder->filePath("refdialer"));
    QVERIFY(obstacle.open(QFile::WriteOnly));
    QVERIFY(!refhost::storeSetting("SomePlugin", "Key", "value"));
}

void TestCommonUtils::keepsSettingsToTheirOwner_data()
{
    QTest::addColumn<int>("mask");
    QTest::newRow("a umask that takes nothing") << 0;
    QTest::newRow("the usual umask") << 022;
    QTest::newRow("a umask that takes everything") << 0777;
}

void TestCommonUtils::keepsSettingsToTheirOwner()
{
    QFETCH(int, mask);
    const QString base = m_folder->filePath("config");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, base);
    const mode_t before = umask(static_cast<mode_t>(mask));
    const bool isStored = refhost::storeSetting("SomePlugin", "Key", "value") &&
                          refhost::storeSetting("SomePlugin", "OtherKey", "other");
    umask(before);
    QVERIFY(isStored);
    QCOMPARE(modeOf(base), 0700);
    QCOMPARE(modeOf(base + "/refdialer"), 0700);
    QCOMPARE(modeOf(base + "/refdialer/refdialer.conf"), 0600);
}

void TestCommonUtils::closesAnOpenSettingsFolder()
{
    const QByteArray folder = QFile::encodeName(m_folder->filePath("refdialer"));
    QCOMPARE(mkdir(folder.constData(), 0755), 0);
    QVERIFY(refhost::storeSetting("SomePlugin", "Key", "value"));
    QCOMPARE(modeOf(m_folder->filePath("refdialer")), 0700);
}

void TestCommonUtils::leavesAFolderAloneThatIsLinked()
{
    QVERIFY(QDir(m_folder->path()).mkdir("elsewhere"));
    const QByteArray target = QFile::encodeName(m_folder->filePath("elsewhere"));
    QCOMPARE(chmod(target.constData(), 0750), 0);
    QVERIFY(QFile::link(m_folder->filePath("elsewhere"), m_folder->filePath("refdialer")));
    QVERIFY(refhost::storeSetting("SomePlugin", "Key", "value"));
    QCOMPARE(modeOf(m_folder->filePath("elsewhere")), 0750);
    QVERIFY(QFile::exists(m_folder->filePath("elsewhere/refdialer.conf")));
}

void TestCommonUtils::knowsNoMainWindowAtFirst()
{
    QCOMPARE(CommonUtils::GetMainWindow(), nullptr);
}

void TestCommonUtils::answersWithTheMainWindow()
{
    QWidget window;
    refhost::setMainWindow(&window);
    QCOMPARE(CommonUtils::GetMainWindow(), &window);
}

void TestCommonUtils::forgetsAMainWindowThatIsGone()
{
    auto window = std::make_unique<QWidget>();
    refhost::setMainWindow(window.get());
    window.reset();
    QCOMPARE(CommonUtils::GetMainWindow(), nullptr);
}

void TestCommonUtils::centresADialogOverTheMainWindow()
{
    QWidget window;
    window.setGeometry(300, 200, 400, 340);
    window.show();
    refhost::setMainWindow(&window);
    QDialog dialog;
    dialog.setFixedSize(300, 220);
    CommonUtils::MoveCentre(&dialog);
    QVERIFY(isCentred(dialog, window.frameGeometry()));
    QVERIFY(!isCentred(dialog, screenArea()));
}

void TestCommonUtils::centresADialogOverTheScreen_data()
{
    QTest::addColumn<bool>("hasMainWindow");
    QTest::newRow("there is no main window") << false;
    QTest::newRow("the main window is hidden") << true;
}

void TestCommonUtils::centresADialogOverTheScreen()
{
    QFETCH(bool, hasMainWindow);
    QWidget window;
    window.setGeometry(0, 0, 100, 100);
    if (hasMainWindow)
        refhost::setMainWindow(&window);
    QDialog dialog;
    dialog.setFixedSize(300, 220);
    CommonUtils::MoveCentre(&dialog);
    QVERIFY(isCentred(dialog, screenArea()));
}

void TestCommonUtils::keepsADialogOnTheScreen()
{
    QWidget window;
    window.setGeometry(screenArea().right() - 50, screenArea().bottom() - 50, 400, 300);
    window.show();
    refhost::setMainWindow(&window);
    QDialog dialog;
    dialog.setFixedSize(300, 220);
    CommonUtils::MoveCentre(&dialog);
    // Qt 5 moves a window that it has not shown yet by one pixel of a frame.
    QVERIFY(screenArea().adjusted(0, 0, 1, 1).contains(dialog.frameGeometry()));
}

void TestCommonUtils::centresADialogThatHasNoSizeYet()
{
    QDialog dialog;
    auto *const content = new QWidget(&dialog);
    content->setMinimumSize(200, 100);
    dialog.setLayout(new QVBoxLayout);
    dialog.layout()->addWidget(content);
    CommonUtils::MoveCentre(&dialog);
    QCOMPARE(dialog.size(), dialog.sizeHint());
    QVERIFY(isCentred(dialog, screenArea()));
}

void TestCommonUtils::toleratesNoDialog()
{
    CommonUtils::MoveCentre(nullptr);
    QCOMPARE(CommonUtils::GetMainWindow(), nullptr);
}

QTEST_MAIN(TestCommonUtils)
#include "tst_commonutils.moc"
