#pragma once

#include <random>
#include <set>
#include <string>

#include "e2e/station.h"
#include "e2e/tcp_client.h"

namespace vigrel::testing {

// How often a station is killed in each situation; a campaign asks for more (VIGREL_KILLS).
int KillsOfEachKind();

// The random moments of a test. It tells the seed, and takes the one of VIGREL_SEED instead.
std::mt19937 RandomMoments();

// Sends numbered alarms, some at a time, and counts the answers.
class cNumberedAlarms {
  public:
    int m_Sent = 0;      // the number of the last one that was sent
    int m_Answered = 0;  // the number of the last one that was answered
    int m_Answers = 0;

    // Up to so many, or to the end of the connection.
    void Send(int port, int count);

  private:
    bool SendSome(const cTcpClient& client);
};

// The number of a stored alarm, 0 for a file that is not whole; when the station took it, in days since
// 1899-12-30.
int NumberOf(const std::string& bytes);
double CreatedTimeOf(const std::string& bytes);
void SetCreatedTime(std::string& bytes, double time);

bool IsAcknowledged(const std::string& bytes);

// The numbers of the alarms that are stored. A file that is not whole fails the test.
std::set<int> StoredNumbers(const cStation& station);

}  // namespace vigrel::testing
