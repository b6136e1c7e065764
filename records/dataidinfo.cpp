#include "dataidinfo.h"

DataIdInfo::DataIdInfo()
{
}

DataIdInfo::DataIdInfo(DataIdInfo const &)
{
}

DataIdInfo::~DataIdInfo()
{
}
