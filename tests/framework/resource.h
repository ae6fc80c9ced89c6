// resource.h - numbers of the resources that the tests hold.
#pragma once

#define IDS_GREETING 101
#define IDS_FORMAT 102
#define IDS_ABSENT 199
