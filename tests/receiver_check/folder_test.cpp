// What lies in the folder beside the configuration, and the machine around it.

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#include <filesystem>
#include <fstream>

#include "common/file_procedures.h"
#include "inspect/alarm_samples.h"
#include "receiver-check/installation.h"
#include "receiver-check/posix_machine.h"
#include "receiver_check/checked_station.h"
#include "support/faulty_files.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

class FolderCheck : public testing::cCheckedStation {
  protected:
    void Alarm(const std::string& name, const std::string& bytes) {
        m_Files.Put(kApp + "Alarms\\" + name, bytes);
    }
    std::string Found() { return Whole(Content()); }
};

TEST_F(FolderCheck, ALanguageWithoutFileIsAnError) {
    const std::string content = Content("Language=46");
    m_Files.Put(kApp + "Vigrel_Texts.046", AllTexts());
    EXPECT_EQ(Lines(Check(content)).substr(0, 42), "error language-missing [General] Language\n");
    EXPECT_EQ(Check(content).m_All[0].message,
              "there is no file Vigrel_Texts.46: the start waits for somebody to choose a language; there "
              "are 044, 046");
}

TEST_F(FolderCheck, ALanguageThatIsNotSetIsAskedFor) {
    const cFindings findings = Check(Content("Language="));
    EXPECT_EQ(findings.m_All[0].name, "language-not-set");
    EXPECT_EQ(findings.m_All[0].severity, eSeverity::Remark);
}

TEST_F(FolderCheck, AFolderWithoutTextsIsAnError) {
    m_Files.RemoveFile(kApp + "Vigrel_Texts.044");
    EXPECT_EQ(Found(), "error no-texts Vigrel_Texts.NNN");
}

TEST_F(FolderCheck, TextsThatTheProgramAsksForAreMissed) {
    m_Files.Put(kApp + "Vigrel_Texts.044", AllTexts(10006) + "10006=\r\n");
    m_Files.Put(kApp + "Vigrel_Texts.046", AllTexts(10007));
    const cFindings findings = Check(Content());
    EXPECT_EQ(Lines(findings),
              "warning texts-missing Vigrel_Texts.044\nremark texts-missing Vigrel_Texts.046");
    EXPECT_EQ(findings.m_All[0].message,
              "lacks texts that the program shows: 10006; the next start of the station adds them");
}

TEST_F(FolderCheck, TextsThatCantBeReadAreAnError) {
    m_Files.Put(kApp + "Vigrel_Texts.044", "99999999999=x\r\n");
    EXPECT_EQ(Found(), "error texts-unreadable Vigrel_Texts.044");
}

TEST_F(FolderCheck, LinesOfListsThatAreSkippedAreTold) {
    m_Files.Put(kApp + "ColourRules.txt", "# a remark\r\n* | 1 | 1 | 0,0,0 | 255,255,255\r\n");
    m_Files.Put(kApp + "OwnHolidays.txt", "24.12. | Eve\r\n");
    m_Files.Put(kApp + "ReceiverTypes.txt", "nonsense\r\n");
    const cFindings findings = Check(Content());
    EXPECT_EQ(Lines(findings),
              "warning list-line-skipped ColourRules.txt\nwarning list-line-skipped OwnHolidays.txt\n"
              "warning list-line-skipped ReceiverTypes.txt");
    EXPECT_EQ(findings.m_All[0].place.line, 2u);
    EXPECT_NE(findings.m_All[0].message.find("a rule has six fields"), std::string::npos);
}

TEST_F(FolderCheck, AGoodAlarmIsLeftAlone) {
    Alarm("A0042917.alm", samples::kAlarm);
    EXPECT_EQ(Found(), "");
}

TEST_F(FolderCheck, AnAlarmThatIsCutOrTooLongIsDamaged) {
    Alarm("A0042917.alm", samples::kAlarm.substr(0, 30));
    const cFindings cut = Check(Content());
    EXPECT_EQ(Lines(cut), "warning alarm-damaged Alarms\\A0042917.alm");
    EXPECT_EQ(Message(cut).substr(0, 51), "byte 29, t1: the file ends inside this field");
    Alarm("A0042917.alm", samples::kAlarm + "x");
    EXPECT_EQ(Found(), "warning alarm-damaged Alarms\\A0042917.alm");
}

TEST_F(FolderCheck, AnAlarmThatCantBeReadEndsTheStart) {
    Alarm("A0042917.alm", samples::kAlarm);
    m_Files.SetUnreadable(kApp + "Alarms\\A0042917.alm", true);
    EXPECT_EQ(Found(), "error alarm-unreadable Alarms\\A0042917.alm");
    m_Files.m_Unreadable[kApp + "Alarms\\"] = {{"A0042917.alm", "Permission denied"},
                                               {"A0000001.alm", "no ordinary file"},
                                               {"Areports.alm", "no ordinary file"}};
    EXPECT_EQ(Found(),
              "error alarm-unreadable Alarms\\A0000001.alm\nerror alarm-unreadable Alarms\\A0042917.alm");
}

TEST_F(FolderCheck, AlarmsWithoutNumberAndStrangersAreNotRead) {
    Alarm("A004291X.alm", samples::kAlarm);
    Alarm("A42917.alm", samples::kAlarm);
    Alarm("notes.txt", "");
    Alarm("A0000001.$~", "");
    EXPECT_EQ(Found(),
              "remark leftover Alarms\\A0000001.$~\n"
              "warning not-an-alarm Alarms\\A004291X.alm\n"
              "warning not-an-alarm Alarms\\A42917.alm\n"
              "remark not-an-alarm Alarms\\notes.txt");
}

TEST_F(FolderCheck, StrangersCostNoLookAtTheFolderEach) {
    const auto looks = [this] {
        const cFaultyFiles counted(m_Files);
        CheckInstallation(counted, kApp, &m_Machine);
        return counted.m_Calls;
    };
    m_Files.Put(kApp + "VigrelReceiver.INI", Content());
    Alarm("0.txt", "");
    const int withOne = looks();
    for (int i = 1; i <= 100; ++i) Alarm(std::to_string(i) + ".txt", "");
    EXPECT_EQ(looks(), withOne);
}

TEST_F(FolderCheck, MoreAlarmsThanAreKeptAreRemarked) {
    for (int i = 1; i <= 3; ++i) Alarm("A004291" + std::to_string(i) + ".alm", samples::kAlarm);
    const cFindings findings = Check(Content("MaxEvents=2"));
    EXPECT_EQ(findings.m_All[0].name, "more-than-max-events");
    EXPECT_EQ(findings.m_All[0].message, "3 alarms are stored: the next start removes the oldest 1");
    EXPECT_EQ(Lines(Check(Content("MaxEvents=0"))).find("more-than"), std::string::npos);
}

TEST_F(FolderCheck, APortInUseMayBeTheStationItself) {
    m_Machine.m_Trial = {cMachine::ePort::InUse, ""};
    EXPECT_EQ(Rest("[TCPIP]\r\nPort=12500"), "warning port-in-use [TCPIP] Port");
    EXPECT_EQ(RestMessage("[TCPIP]\r\nPort=12500"),
              "TCP port 12500 is in use (perhaps by the station itself)");
    EXPECT_EQ(m_Machine.m_Tried.back(), ":12500");
    EXPECT_EQ(Message(Check(Content())), "TCP port 12412 is in use (perhaps by the station itself)");
}

TEST_F(FolderCheck, AnAddressIsTriedWithThePort) {
    m_Machine.m_Trial = {cMachine::ePort::Failed, "Cannot assign requested address"};
    EXPECT_EQ(RestMessage("[TCPIP]\r\nPort=12500\r\nAddress= 192.0.2.1"),
              "TCP port 12500 of address 192.0.2.1 can't be opened: Cannot assign requested address");
    EXPECT_EQ(m_Machine.m_Tried.back(), "192.0.2.1:12500");
}

TEST_F(FolderCheck, APortThatCantBeOpenedIsAnError) {
    m_Machine.m_Trial = {cMachine::ePort::Failed, "Permission denied"};
    EXPECT_EQ(Rest("[TCPIP]\r\nPort=80"), "error port-not-opened [TCPIP] Port");
    EXPECT_EQ(RestMessage("[TCPIP]\r\nPort=80"), "TCP port 80 can't be opened: Permission denied");
}

TEST_F(FolderCheck, APortOutOfRangeIsNotTried) {
    for (const std::string port : {"0", "-1", "65536"}) {
        EXPECT_NE(Rest("[TCPIP]\r\nPort=" + port).find("error port-out-of-range [TCPIP] Port"),
                  std::string::npos);
    }
    EXPECT_TRUE(m_Machine.m_Tried.empty());
    EXPECT_EQ(Rest("[TCPIP]\r\nPort=3000000000"), "error number-overflow [TCPIP] Port");
}

TEST_F(FolderCheck, AlarmsThatCantBeWrittenAreAnErrorAndLogsAWarning) {
    m_Machine.m_NotWritable = {{kApp + "Alarms", "Permission denied"}, {kApp + "LogFiles", "Read-only"}};
    EXPECT_EQ(Found(), "error folder-not-writable Alarms\nwarning folder-not-writable LogFiles");
    EXPECT_EQ(Check(Content()).m_All[0].message, "Permission denied: no alarm is kept over a restart");
}

TEST_F(FolderCheck, MissingFoldersAreMadeWhereTheFolderAboveCanBeWritten) {
    m_Machine.m_Missing = {kApp + "Alarms", kApp + "LogFiles"};
    EXPECT_EQ(Found(), "");
    m_Machine.m_NotWritable = {{kApp, "Permission denied"}};
    EXPECT_EQ(Found(),
              "warning folder-not-writable .\n"
              "error folder-missing Alarms\n"
              "warning folder-missing LogFiles");
}

TEST_F(FolderCheck, WithoutAMachineOnlyFilesAreLookedAt) {
    m_Machine.m_Trial = {cMachine::ePort::InUse, ""};
    m_Files.Put(kApp + "VigrelReceiver.INI", Content());
    EXPECT_EQ(Lines(CheckInstallation(m_Files, kApp, nullptr)), "");
    EXPECT_TRUE(m_Machine.m_Tried.empty());
}

TEST_F(FolderCheck, NothingIsEverWritten) {
    Alarm("A0042917.alm", samples::kAlarm);
    const int calls = m_Files.m_Calls;
    CheckInstallation(m_Files, kApp, &m_Machine);
    EXPECT_EQ(m_Files.m_Calls, calls);
}

// --- the machine's side

// A socket of this process on a port that the system chooses.
class cOpenPort {
  public:
    explicit cOpenPort(bool listening) : m_Socket(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        socklen_t size = sizeof address;
        EXPECT_EQ(bind(m_Socket, reinterpret_cast<sockaddr*>(&address), size), 0);
        if (listening) listen(m_Socket, 1);
        getsockname(m_Socket, reinterpret_cast<sockaddr*>(&address), &size);
        m_Port = ntohs(address.sin_port);
    }
    ~cOpenPort() { Close(); }
    void Close() {
        if (m_Socket >= 0) close(m_Socket);
        m_Socket = -1;
    }
    std::int32_t m_Port = 0;

  private:
    int m_Socket;
};

TEST(PosixMachine, APortIsInUseWhileSomebodyListensAndFreeAfterwards) {
    const cPosixMachine machine;
    cOpenPort port(true);
    EXPECT_EQ(machine.TryPort("", port.m_Port).port, cMachine::ePort::InUse);
    port.Close();
    EXPECT_EQ(machine.TryPort("", port.m_Port).port, cMachine::ePort::Free);
    EXPECT_EQ(machine.TryPort("", port.m_Port).port, cMachine::ePort::Free) << "the trial lets the port go";
}

TEST(PosixMachine, FoldersAreFoundInAnyCaseAndAskedForTheirRights) {
    const cPosixMachine machine;
    const testing::cTemporaryFolder folder;
    std::filesystem::create_directories(folder.Path() / "Alarms");
    EXPECT_TRUE(machine.FolderExists(folder.Folder() + "ALARMS"));
    EXPECT_FALSE(machine.FolderExists(folder.Folder() + "LogFiles"));
    EXPECT_EQ(machine.WhyNotWritable(folder.Folder() + "alarms"), std::nullopt);
    EXPECT_EQ(machine.WhyNotReadable(folder.Folder()), std::nullopt);
    EXPECT_EQ(machine.WhyNotWritable(folder.Folder() + "LogFiles"), "No such file or directory");
    EXPECT_NE(machine.WhyNotWritable("/proc/self"), std::nullopt) << "nobody may write there";
}

TEST(PosixMachine, APrinterOfTheNetworkAnswersOrNot) {
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), size), 0);
    ASSERT_EQ(listen(listener, 1), 0);
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    const std::string device = "tcp:127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    EXPECT_EQ(cPosixMachine().WhyNotPrinting(device), std::nullopt);
    close(listener);
    EXPECT_NE(cPosixMachine().WhyNotPrinting(device).value_or("").find("refused"), std::string::npos);
}

TEST(PosixMachine, AFileToPrintToIsNotMadeByAsking) {
    const testing::cTemporaryFolder folder;
    const std::string path = (folder.Path() / "print.txt").string();
    EXPECT_EQ(cPosixMachine().WhyNotPrinting(path), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_NE(cPosixMachine().WhyNotPrinting("/dev/no-such-printer"), std::nullopt);
    EXPECT_NE(cPosixMachine().WhyNotPrinting(path + "/below/print.txt"), std::nullopt);
}

TEST(PosixMachine, ASoundIsDecodedForItsLength) {
    EXPECT_GT(cPosixMachine().SecondsOfSound(VIGREL_SHARE_DIR "/Sounds/alarm.wav").value_or(0), 0.1);
    const testing::cTemporaryFolder folder;
    std::ofstream(folder.Path() / "x.wav") << "RIFF....WAVEfmt ";
    EXPECT_EQ(cPosixMachine().SecondsOfSound((folder.Path() / "x.wav").string()), std::nullopt);
}

}  // namespace
}  // namespace vigrel::testing
