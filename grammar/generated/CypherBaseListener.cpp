
// Generated from Cypher.g4 by ANTLR 4.10


#include "CypherBaseListener.h"


using namespace vorn;

